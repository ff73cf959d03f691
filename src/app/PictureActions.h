// SPDX-License-Identifier: MIT
#pragma once

#include "app/DesktopSide.h"
#include "mainwindow/Deletion.h"
#include "service/PictureService.h"

namespace moravel {

/// What can be done to the picture of a cell besides showing it: ties deleting, restoring and looking up
/// the caption to the service client and the desktop side.
class PictureActions
{
public:
    /// All of @p context, @p service and @p trash, and @p desktop if there is one, must outlive this object.
    PictureActions(const ServiceContext &context, PictureService &service, Trash &trash,
                   DesktopSide *desktop);

    void deletePic(ThumbView &cell, DeleteSender sender) { m_deletion.deletePic(cell, sender); }

    void reloadDeletedPic(ThumbView &cell) { m_deletion.reloadDeletedPic(cell); }

private:
    static DeletionPorts ports(PictureService &service, DesktopSide *desktop);

    Deletion m_deletion;
};

} // namespace moravel
