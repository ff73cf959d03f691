// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QList>
#include <QString>

#include <functional>

namespace moravel {

/// One line of the tray icon's menu.
struct TrayMenuItem
{
    QString title; ///< Plain text; empty for a separator.
    QString command; ///< Given to onCommand when it is chosen.
    bool enabled = true;
    bool operator==(const TrayMenuItem &) const = default;
};

/// The program's icon in the desktop's tray, for as long as there is a tray. Main thread only.
class Tray
{
public:
    virtual ~Tray() = default;

    /// Shows @p image as the icon, in its own proportions.
    virtual void setImage(const QImage &image) = 0;

    /// Tells whether the icon is in a tray now.
    virtual bool isShown() const = 0;

    /// Asked each time the menu opens, and when a tray shows up; an empty list gives no menu lines.
    std::function<QList<TrayMenuItem>()> onMenuNeeded;
    std::function<void(const QString &command)> onCommand;
    std::function<void()> onActivated; ///< The icon itself was clicked.
};

} // namespace moravel
