// SPDX-License-Identifier: MIT
#pragma once

#include <QAction>

#include <functional>

namespace moravel {

/// Makes a checkable menu item whose command sets the check mark itself: the mark still shows the state
/// before the choice when @p command runs.
QAction *makeCheckItem(const QString &title, QObject *parent, std::function<void()> command);

/// Makes a text from outside fit for a menu: no mnemonics, no tabs or other control characters, not
/// wider than a menu should be.
QString menuTitle(const QString &text);

} // namespace moravel
