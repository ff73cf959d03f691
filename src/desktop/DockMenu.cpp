// SPDX-License-Identifier: MIT
#include "desktop/DockMenu.h"

#include "platform/Texts.h"

namespace moravel {

bool isOffered(DockCommand command, const DockMenuState &state)
{
    constexpr int Hour = 60; // minutes
    switch (command) {
    case DockCommand::HoldForOneHour:
        return state.rotateFrequency < Hour;
    case DockCommand::PreviousDesktop:
        return state.hasPrevious;
    default:
        return command != DockCommand::None;
    }
}

QList<DockMenuItem> dockMenuItems(const DockMenuState &state)
{
    if (state.longSourceName.isEmpty() || state.dateString.isEmpty()
        || state.captionString.isEmpty())
        return {};
    QList<DockMenuItem> items{
        {QStringLiteral("%1 - %2").arg(state.longSourceName, state.dateString),
         DockCommand::ShowDesktopInfo},
        {state.captionString, DockCommand::ShowDesktopInfo},
        {},
        {state.rotateInfoText, DockCommand::None}};
    if (isOffered(DockCommand::HoldForOneHour, state))
        items.append({Texts::tr("Keep this desktop for 1 hour"), DockCommand::HoldForOneHour});
    items.append({Texts::tr("Change desktop now"), DockCommand::RotateDesktop});
    if (isOffered(DockCommand::PreviousDesktop, state))
        items.append({Texts::tr("Back to previous desktop"), DockCommand::PreviousDesktop});
    return items;
}

} // namespace moravel
