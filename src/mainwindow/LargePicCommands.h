// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace moravel {

class LargeImageView;

/// What the large picture window's controls do. A command that is not there leaves its control disabled.
struct LargePicCommands
{
    std::function<void()> previousLargePic;
    std::function<void()> nextLargePic;
    std::function<void()> showParent;
    std::function<void()> setDesktop;
    std::function<void()> showPicInFinder;
    std::function<void()> shareEmail;
    std::function<void()> shareFacebook;
    std::function<void()> shareTwitter;
    std::function<void()> deletePic;
};

/// The actions of the large picture window: its buttons, keys and context menu carry them.
struct LargePicActions
{
    /// Makes them all, with their keys in @p window. Zooming acts on @p view; @p fitWindow gives the window
    /// its standard frame.
    LargePicActions(QWidget *window, const LargePicCommands &commands, LargeImageView &view,
                    const std::function<void()> &fitWindow,
                    const std::function<void()> &closeWindow);

    /// Makes the context menu; it deletes itself when it closes.
    QMenu *makeMenu(QWidget *parent) const;

    QAction *previous;
    QAction *next;
    QAction *showParent;
    QAction *setDesktop;
    QAction *showInFinder;
    QAction *email;
    QAction *facebook;
    QAction *twitter;
    QAction *deletePic;
    QAction *standardSize;
    QAction *zoomIn;
    QAction *zoomOut;
    QAction *zoomToFit;
    QAction *actualSize;
    QAction *fullScreen; ///< For the window to carry out.
    QAction *close;
};

} // namespace moravel
