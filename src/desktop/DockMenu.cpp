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

QList<DockMenuItem> dockMenuItems(const DockMenuState &state)
{
    constexpr int Hour = 60;
    if (state.longSourceName.isEmpty() || state.dateString.isEmpty()
        || state.captionString.isEmpty())
        return {};
    QList<DockMenuItem> items{
        {QStringLiteral("%1 - %2").arg(state.longSourceName, state.dateString),
         DockCommand::ShowDesktopInfo},
        {state.captionString, DockCommand::ShowDesktopInfo},
        {},
        {state.rotateInfoText, DockCommand::None}};
    if (state.rotateFrequency < Hour)
        items.append({translated("Keep this desktop for 1 hour"), DockCommand::HoldForOneHour});
    items.append({translated("Change desktop now"), DockCommand::RotateDesktop});
    if (state.hasPrevious)
        items.append({translated("Back to previous desktop"), DockCommand::PreviousDesktop});
    return items;
}

} // namespace moravel
