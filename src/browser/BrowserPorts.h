// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace moravel {

/// What the browser needs of its neighbours. A command whose port is empty is not offered.
struct BrowserPorts
{
    /// Runs @p work on a worker thread, then @p done on the main one; one after the other, in order.
    std::function<void(std::function<void()> work, std::function<void()> done)> inBackground;
    std::function<void(const QString &path)> setDesktopToFile;
    /// Shows a file, marked, in its folder in the file manager.
    std::function<void(const QString &path)> revealFile;
    /// Moves files to the Trash; calls @p done once when it has tried, later than the call.
    std::function<void(const QStringList &paths, std::function<void()> done)> moveToTrash;
    /// Changes the desktop picture to another one.
    std::function<void()> rotateDesktop;
    /// Tells whether the fields of a stored record are good enough to show.
    std::function<bool(const QStringList &fields)> sufficientData;
    /// Tells whether Alt is held down in the event that is being handled.
    std::function<bool()> optionKeyHeld;
    /// Gets the window when it is made, before it is shown.
    std::function<void(QWidget &)> windowMade;
};

} // namespace moravel
