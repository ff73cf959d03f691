// SPDX-License-Identifier: MIT
#include "app/PictureActions.h"

namespace moravel {

PictureActions::PictureActions(const ServiceContext &context, PictureService &service, Trash &trash,
                               DesktopSide *desktop)
    : m_deletion({context.cells, context.dates, context.platform.files, context.records,
                  context.updates, context.links, trash, context.platform.loop},
                 ports(service, desktop))
{
    if (desktop)
        desktop->setReloadDeletedPic([this](ThumbView &cell) { reloadDeletedPic(cell); });
}

DeletionPorts PictureActions::ports(PictureService &service, DesktopSide *desktop)
{
    DeletionPorts ports;
    ports.findThumb = [&service](const QString &source, const QString &day,
                                 const std::function<void(const QString &)> &done) {
        service.findThumb(source, day, done);
    };
    ports.displayThumbForSource = [&service](const QString &source,
                                             const std::function<void()> &then) {
        service.displayThumbForSource(source, then);
    };
    ports.loadNextPic = [&service] { service.loadNextPic(); };
    if (!desktop)
        return ports;
    DesktopManagement &management = desktop->management();
    ports.setDeletingDesktop = [&management](bool deleting) {
        management.setter().setDeletingDesktop(deleting);
    };
    ports.rotateDesktop = [&management] {
        management.rotation().rotateDesktop(RotateSender::Button);
    };
    return ports;
}

} // namespace moravel
