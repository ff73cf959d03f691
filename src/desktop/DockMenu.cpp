// SPDX-License-Identifier: MIT
#include "desktop/DockMenu.h"

#include <QCoreApplication>

namespace moravel {

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("moravel", text);
}

} // namespace

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
        items.append({translated("Keep this desktop for 1 hour"), DockCommand::HoldForOneHour});
    items.append({translated("Change desktop now"), DockCommand::RotateDesktop});
    if (isOffered(DockCommand::PreviousDesktop, state))
        items.append({translated("Back to previous desktop"), DockCommand::PreviousDesktop});
    return items;
}

} // namespace moravel
