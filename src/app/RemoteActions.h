// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopManagement.h"
#include "platform/MainLoop.h"
#include "platform/RemoteControl.h"

#include <QWidget>

namespace moravel {

/// What requests from outside act on; lives longer than they come.
struct RemoteTargets
{
    MainLoop &loop;
    DesktopManagement *desktop = nullptr; ///< Null where no desktop picture can be set.
    std::function<void()> activate;
    std::function<void(const QStringList &names)> switchOnSources;
};

namespace remoteaction {

/// Switches on the sources that the arguments name ("all" for every one).
inline const QString Sources = QStringLiteral("sources");

} // namespace remoteaction

/// Answers @p control: the actions "next", "previous" and "hold" concern the desktop picture, as in the
/// menu of the tray icon. A command that comes while the program waits for an answer takes its turn after
/// it.
void tieRemoteControl(RemoteControl &control, const RemoteTargets &targets);

/// Shows @p window in front of the others, also when it was minimised.
void bringToFront(QWidget &window);

} // namespace moravel
