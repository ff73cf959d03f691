// SPDX-License-Identifier: MIT
#include "desktop/DesktopManagement.h"

#include "desktop/DesktopUrls.h"
#include "platform/Texts.h"

namespace moravel {

DesktopManagement::DesktopManagement(const DesktopContext &context)
    : m_context(context)
    , m_setter(m_context)
    , m_dockTile(m_context)
    , m_cell(m_context, m_dockTile)
    , m_watcher(m_context, m_setter, m_cell, m_dockTile)
    , m_rotation(m_context, m_setter)
    , m_overlay(m_context, m_setter)
{
    m_setter.onDesktopSet = [this](const QString &path) {
        m_cell.showDesktopThumb(path);
        m_dockTile.showInDock();
    };
    m_context.pictures.onScreensChanged = [this] { m_setter.reapplySoon(); };
    m_context.preferences.onFrequencyChanged = [this] { m_rotation.setupNextDesktopRotate(); };
}

DesktopManagement::~DesktopManagement()
{
    m_context.pictures.onScreensChanged = {};
    m_context.preferences.onFrequencyChanged = {};
}

void DesktopManagement::start()
{
    m_watcher.checkCurrentDesktop();
    m_dockTile.showInDock();
    m_rotation.showRotateInfo();
}

void DesktopManagement::setDesktop(const QString &currentLargePicPath)
{
    if (m_context.fileSizeMB(currentLargePicPath) <= LargestQuietMB || !m_context.ports.ask) {
        setChosenDesktop(currentLargePicPath);
        return;
    }
    constexpr int ShowAnyway = 1;
    const DesktopQuestion question{
        Texts::tr("File too big"),
        Texts::tr("That pic will take ages to display, so your system will appear frozen."),
        {Texts::tr("Don't Show"), Texts::tr("Show Anyway")}};
    m_context.ports.ask(
        question, [this, path = currentLargePicPath, alive = std::weak_ptr(m_alive)](int button) {
            if (button == ShowAnyway && !alive.expired())
                setChosenDesktop(path);
        });
}

void DesktopManagement::setChosenDesktop(const QString &path)
{
    setToChosen(path);
    m_rotation.setupNextDesktopRotate();
}

void DesktopManagement::setToChosen(const QString &path)
{
    if (m_context.ports.userChose)
        m_context.ports.userChose(path);
    m_setter.setDesktopToFile(path);
}

void DesktopManagement::setAsDesktop(ThumbView &cell, int clickCount)
{
    if (cell.thumbPath() == ThumbView::deletedMark()) {
        if (clickCount >= 2 && m_context.ports.reloadDeletedPic)
            m_context.ports.reloadDeletedPic(cell);
        return;
    }
    const QString path = m_context.links.picLinkToPath(cell.picPath(), false, true);
    if (!path.isEmpty())
        setToChosen(path);
    else if (m_context.ports.fetchForDesktop)
        m_context.ports.fetchForDesktop(cell);
}

void DesktopManagement::showInFinder(ThumbView &cell)
{
    const QString path = m_context.links.picLinkToPath(cell.picPath(), false, true);
    if (!path.isEmpty() && m_context.ports.revealFile)
        m_context.ports.revealFile(path);
}

void DesktopManagement::setSizing(int sizingTag)
{
    m_context.preferences.setDesktopSize(sizingTag);
    // With its escapes, unlike everywhere else: what the desktop shows already is left alone.
    m_setter.setDesktopToFile(
        withoutFileHost(m_context.pictures.desktopImageUrl(m_context.mainScreen().id)));
}

void DesktopManagement::showDesktopPrefs()
{
    if (!m_context.ports.runDesktopPrefsScript)
        return;
    m_context.ports.runDesktopPrefsScript([this,
                                           alive = std::weak_ptr(m_alive)](const QString &error) {
        if (!error.isEmpty() && !alive.expired())
            m_context.platform.alerts.alert(Texts::tr("Error opening System Preferences"), error);
    });
}

void DesktopManagement::showDesktopInfo()
{
    if (m_context.ports.activate)
        m_context.ports.activate();
    if (m_context.ports.showLargePic)
        m_context.ports.showLargePic(m_context.cells.desktopThumb());
}

void DesktopManagement::addTextToDesktop(const QString &path, const ThumbView &currentThumb)
{
    m_overlay.addTextToDesktop(path, currentThumb);
}

DockMenuState DesktopManagement::dockMenuState() const
{
    const ThumbView &cell = m_context.cells.desktopThumb();
    return {cell.longSourceName(),
            cell.dateString(),
            cell.captionString(),
            m_rotation.rotateInfoText(),
            m_context.preferences.rotateFrequency(),
            !m_setter.previousDesktopPath().isEmpty()};
}

QList<DockMenuItem> DesktopManagement::applicationDockMenu() const
{
    return dockMenuItems(dockMenuState());
}

void DesktopManagement::run(DockCommand command)
{
    switch (command) {
    case DockCommand::None:
        return;
    case DockCommand::ShowDesktopInfo:
        showDesktopInfo();
        return;
    case DockCommand::HoldForOneHour:
        m_rotation.holdDesktopForOneHour();
        return;
    case DockCommand::RotateDesktop:
        m_rotation.rotateDesktop(RotateSender::TimerOrMenu);
        return;
    case DockCommand::PreviousDesktop:
        m_rotation.previousDesktop();
        return;
    }
}

} // namespace moravel
