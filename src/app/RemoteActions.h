// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopManagement.h"
#include "platform/Platform.h"
#include "platform/RemoteControl.h"

#include <QWidget>

namespace moravel {

/// Shows a window; returns null when there is nothing to show in it yet.
using ShowsWindow = std::function<QWidget *()>;

/// What requests from outside act on; lives longer than they come.
struct RemoteTargets
{
    Platform &platform;
    DesktopManagement *desktop = nullptr; ///< Null where no desktop picture can be set.
    std::function<QVariantMap(const QString &path)> pictureOfDesktop;
    ShowsWindow showMainWindow;
    ShowsWindow showLargePic;
    ShowsWindow showBrowser;
    std::function<void(const QStringList &names)> switchOnSources;
    std::function<void()> quit;
};

/// Answers @p control: "next", "previous" and "hold" concern the desktop picture, as in the menu of the tray
/// icon; "set" makes the file that its argument names the desktop, "current" tells what is there; "show",
/// "large" and "browser" bring a window to the front; "sources" switches some on; "quit" ends the program. A
/// command that changes something while the program waits for an answer takes its turn after it.
void tieRemoteControl(RemoteControl &control, const RemoteTargets &targets);

/// Shows @p window in front of the others, also when it was minimised.
void bringToFront(QWidget &window);

} // namespace moravel
