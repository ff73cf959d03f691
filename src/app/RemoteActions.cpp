// SPDX-License-Identifier: MIT
#include "app/RemoteActions.h"

#include <QHash>

#include <algorithm>

namespace moravel {

namespace {

constexpr qsizetype MostSources = 1000;

struct DesktopAction
{
    DockCommand command;
    QString notNow; ///< Why it is refused when the menu would not offer it.
};

const QHash<QString, DesktopAction> &desktopActions()
{
    static const QHash<QString, DesktopAction> actions{
        {QStringLiteral("next"), {DockCommand::RotateDesktop, {}}},
        {QStringLiteral("previous"),
         {DockCommand::PreviousDesktop, QStringLiteral("There is no previous desktop.")}},
        {QStringLiteral("hold"),
         {DockCommand::HoldForOneHour,
          QStringLiteral("The desktop changes every hour or more rarely.")}},
    };
    return actions;
}

tl::expected<void, QString> runOnDesktop(const RemoteTargets &targets, const DesktopAction &action)
{
    if (!targets.desktop)
        return tl::unexpected(QStringLiteral("No desktop picture can be set here."));
    if (!targets.desktop->offers(action.command))
        return tl::unexpected(action.notNow);
    targets.loop.inOrder(
        [desktop = targets.desktop, command = action.command] { desktop->run(command); });
    return {};
}

tl::expected<void, QString> run(const RemoteTargets &targets, const QString &action,
                                const QVariantList &arguments)
{
    const auto onDesktop = desktopActions().constFind(action);
    if (onDesktop != desktopActions().cend())
        return runOnDesktop(targets, *onDesktop);
    if (action != remoteaction::Sources)
        return tl::unexpected(QStringLiteral("There is no command \"%1\".").arg(action.left(100)));
    QStringList names;
    for (const QVariant &argument : arguments.first(std::min(arguments.size(), MostSources)))
        names.append(argument.toString());
    targets.loop.inOrder([names, switchOn = targets.switchOnSources] { switchOn(names); });
    targets.activate();
    return {};
}

} // namespace

void tieRemoteControl(RemoteControl &control, const RemoteTargets &targets)
{
    control.onActivate = targets.activate;
    control.onAction = [targets](const QString &action, const QVariantList &arguments) {
        return run(targets, action, arguments);
    };
}

void bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace moravel
