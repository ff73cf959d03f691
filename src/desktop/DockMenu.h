// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace moravel {

enum class DockCommand { None, ShowDesktopInfo, HoldForOneHour, RotateDesktop, PreviousDesktop };

/// One line of the menu on the program's icon. Without a command it is shown greyed.
struct DockMenuItem
{
    QString title; ///< Empty for a separator.
    DockCommand command = DockCommand::None;

    bool isSeparator() const { return title.isEmpty(); }

    bool isEnabled() const { return command != DockCommand::None; }

    bool operator==(const DockMenuItem &) const = default;
};

struct DockMenuState
{
    QString longSourceName;
    QString dateString;
    QString captionString;
    QString rotateInfoText;
    int rotateFrequency = 0;
    bool hasPrevious = false;
};

/// Tells whether @p command can be asked for now, in the menu or from outside.
bool isOffered(DockCommand command, const DockMenuState &state);

/// Returns the menu on the program's icon; empty while the desktop cell lacks a text.
QList<DockMenuItem> dockMenuItems(const DockMenuState &state);

} // namespace moravel
