// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopContext.h"

#include <QImage>

#include <optional>

namespace moravel {

/// Side of the program's icon on a picture: half of the longer side; nothing when that does not fit.
std::optional<int> dockIconSide(QSize picture);

/// Returns the picture with the program's icon in its lower left corner, or the plain icon when there is
/// no picture or it is too elongated.
QImage composeDockTile(const QImage &picture, const QImage &icon);

/// The program's own icon, which shows the desktop.
class DockTile
{
public:
    explicit DockTile(const DesktopContext &context);

    /// Redraws the icon from the desktop cell. Costs nothing when it would be the same.
    void showInDock();

private:
    const DesktopContext &m_context;
    std::optional<qint64> m_shownKey; ///< Key of the picture that the icon was made of; 0 for none.
};

} // namespace moravel
