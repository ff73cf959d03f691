// SPDX-License-Identifier: MIT
#include "mainwindow/LargePicCommands.h"

#include "mainwindow/Icons.h"
#include "mainwindow/LargeImageView.h"
#include "platform/Texts.h"

#include <QAction>
#include <QMenu>

namespace moravel {

namespace {

QAction *make(QWidget *window, const QString &title, const char *icon,
              const QList<QKeySequence> &keys, const std::function<void()> &command)
{
    auto *action = new QAction(title, window);
    if (icon)
        action->setIcon(themedIcon(QLatin1String(icon)));
    action->setIconVisibleInMenu(false);
    action->setShortcuts(keys);
    action->setEnabled(bool(command));
    if (command)
        QObject::connect(action, &QAction::triggered, window, [command] { command(); });
    window->addAction(action);
    return action;
}

} // namespace

LargePicActions::LargePicActions(QWidget *window, const LargePicCommands &commands,
                                 LargeImageView &view, const std::function<void()> &fitWindow,
                                 const std::function<void()> &closeWindow)
{
    const bool mirrored = window->isRightToLeft();
    const int back = mirrored ? Qt::Key_Right : Qt::Key_Left;
    const int forth = mirrored ? Qt::Key_Left : Qt::Key_Right;
    previous = make(window, Texts::tr("&Previous Picture"), "previous-day", {back},
                    commands.previousLargePic);
    next = make(window, Texts::tr("&Next Picture"), "next-day", {forth}, commands.nextLargePic);
    showParent = make(window, Texts::tr("&Original Page"), "web", {Qt::CTRL | Qt::Key_O},
                      commands.showParent);
    setDesktop = make(window, Texts::tr("Set as &Desktop"), "desktop", {Qt::CTRL | Qt::Key_D},
                      commands.setDesktop);
    showInFinder = make(window, Texts::tr("Show in &File Manager"), "folder",
                        {Qt::CTRL | Qt::Key_R}, commands.showPicInFinder);
    email = make(window, Texts::tr("Share by &E-mail"), "mail", {Qt::CTRL | Qt::Key_E},
                 commands.shareEmail);
    facebook =
        make(window, Texts::tr("Share on Face&book"), "facebook", {}, commands.shareFacebook);
    twitter = make(window, Texts::tr("Share on &Twitter"), "twitter", {}, commands.shareTwitter);
    deletePic = make(window, Texts::tr("De&lete"), "delete", {Qt::Key_Delete}, commands.deletePic);
    standardSize = make(window, Texts::tr("Fit &Window to Picture"), "zoom-window",
                        {Qt::CTRL | Qt::Key_2}, fitWindow);
    zoomIn = make(window, Texts::tr("Zoom &In"), nullptr,
                  {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}, [&view] { view.zoomIn(); });
    zoomOut = make(window, Texts::tr("Zoom O&ut"), nullptr, {Qt::CTRL | Qt::Key_Minus},
                   [&view] { view.zoomOut(); });
    zoomToFit = make(window, Texts::tr("&Zoom to Fit"), nullptr, {Qt::CTRL | Qt::Key_0},
                     [&view] { view.zoomToFit(); });
    actualSize = make(window, Texts::tr("&Actual Size"), nullptr, {Qt::CTRL | Qt::Key_1},
                      [&view] { view.zoomToActualSize(); });
    fullScreen = make(window, Texts::tr("Full Sc&reen"), nullptr, {Qt::Key_F11}, [] {});
    close = make(window, Texts::tr("&Close"), nullptr, {Qt::Key_Escape, Qt::CTRL | Qt::Key_W},
                 closeWindow);
}

QMenu *LargePicActions::makeMenu(QWidget *parent) const
{
    auto *menu = new QMenu(parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    using Group = QList<QAction *>;
    for (const Group &group :
         {Group{previous, next},
          Group{zoomIn, zoomOut, zoomToFit, actualSize, standardSize, fullScreen},
          Group{showParent, setDesktop, showInFinder}, Group{email, facebook, twitter},
          Group{deletePic, close}}) {
        menu->addActions(group);
        menu->addSeparator();
    }
    return menu;
}

} // namespace moravel
