// SPDX-License-Identifier: MIT
#include "app/RemoteActions.h"

#include "platform/Texts.h"

#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <climits>

namespace moravel {

namespace {

using Answer = RemoteControl::Answer;
using Action = std::function<void(RemoteControl &, const RemoteTargets &,
                                  const QVariantList &arguments, const Answer &)>;

constexpr qsizetype MostSources = 1000;

tl::unexpected<QString> refused(const QString &why)
{
    return tl::unexpected(why);
}

// An action of the menu on the tray's icon; @p notNow says why the menu would not offer it.
Action onDesktop(DockCommand command, const QString &notNow)
{
    return [command, notNow](RemoteControl &, const RemoteTargets &targets, const QVariantList &,
                             const Answer &answer) {
        DesktopManagement *desktop = targets.desktop;
        if (!desktop)
            return answer(refused(Texts::tr("No desktop picture can be set here.")));
        if (!desktop->offers(command))
            return answer(refused(notNow));
        targets.platform.loop.inOrder([desktop, command] { desktop->run(command); });
        answer({});
    };
}

Action onWindow(ShowsWindow RemoteTargets::*show)
{
    return [show](RemoteControl &control, const RemoteTargets &targets, const QVariantList &,
                  const Answer &answer) {
        const ShowsWindow &shows = targets.*show;
        QWidget *window = shows ? shows() : nullptr;
        if (!window)
            return answer(refused(Texts::tr("There is nothing to show yet.")));
        bringToFront(*window);
        control.letToFront(*window->windowHandle());
        answer({});
    };
}

// The file may be anything, also a pipe that never ends: only regular files are opened.
bool canBeRead(const QString &path)
{
    return path.startsWith(u'/') && path.toUtf8().size() < PATH_MAX && QFileInfo(path).isFile();
}

void setFile(RemoteControl &, const RemoteTargets &targets, const QVariantList &arguments,
             const Answer &answer)
{
    if (!targets.desktop)
        return answer(refused(Texts::tr("No desktop picture can be set here.")));
    const QString path = arguments.value(0).toString();
    if (!canBeRead(path))
        return answer(refused(Texts::tr("There is no such file; its path must be absolute.")));
    targets.platform.images.size(path, [targets, path, answer](QSize size) {
        if (size.isEmpty())
            return answer(refused(Texts::tr("The file is not a picture that can be read.")));
        targets.platform.loop.inOrder(
            [desktop = targets.desktop, path] { desktop->setChosenDesktop(path); });
        answer({});
    });
}

void tellCurrent(RemoteControl &, const RemoteTargets &targets, const QVariantList &,
                 const Answer &answer)
{
    const QString path = targets.desktop ? targets.desktop->currentDesktopPath() : QString();
    if (path.isEmpty())
        return answer(refused(Texts::tr("It is not known what the desktop shows.")));
    answer(targets.pictureOfDesktop(path));
}

void switchOnSources(RemoteControl &control, const RemoteTargets &targets,
                     const QVariantList &arguments, const Answer &answer)
{
    QStringList names;
    for (const QVariant &argument : arguments.first(std::min(arguments.size(), MostSources)))
        names.append(argument.toString());
    targets.platform.loop.inOrder([names, switchOn = targets.switchOnSources] { switchOn(names); });
    onWindow (&RemoteTargets::showMainWindow)(control, targets, {}, answer);
}

void quit(RemoteControl &, const RemoteTargets &targets, const QVariantList &, const Answer &answer)
{
    answer({}); // before there is nobody left to do so
    targets.quit();
}

const QHash<QString, Action> &actions()
{
    static const QHash<QString, Action> table{
        {QStringLiteral("next"), onDesktop(DockCommand::RotateDesktop, {})},
        {QStringLiteral("previous"),
         onDesktop(DockCommand::PreviousDesktop, Texts::tr("There is no previous desktop."))},
        {QStringLiteral("hold"),
         onDesktop(DockCommand::HoldForOneHour,
                   Texts::tr("The desktop changes every hour or more rarely."))},
        {QStringLiteral("current"), tellCurrent},
        {QStringLiteral("set"), setFile},
        {remoteaction::Show, onWindow(&RemoteTargets::showMainWindow)},
        {QStringLiteral("large"), onWindow(&RemoteTargets::showLargePic)},
        {QStringLiteral("browser"), onWindow(&RemoteTargets::showBrowser)},
        {remoteaction::Sources, switchOnSources},
        {QStringLiteral("quit"), quit},
    };
    return table;
}

} // namespace

void tieRemoteControl(RemoteControl &control, const RemoteTargets &targets)
{
    control.onAction = [&control, targets](const QString &name, const QVariantList &arguments,
                                           const Answer &answer) {
        const auto action = actions().constFind(name);
        if (action != actions().cend())
            (*action)(control, targets, arguments, answer);
        else
            answer(tl::unexpected(Texts::tr("There is no command \"%1\".").arg(name.left(100))));
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
