// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>
#include <tl/expected.hpp>

namespace moravel {

/// One screen as the desktop knows it.
struct DesktopScreen
{
    QString id; ///< Stable while the screen is connected (its connector or output name).
    QSize pixels; ///< Size in device pixels.
    bool isMain = false; ///< The screen that has the menus and panels; exactly one is.
    bool operator==(const DesktopScreen &) const = default;
};

/// How a picture is laid onto a screen.
enum class DesktopScaling {
    Centred, ///< In its own size.
    Fit, ///< As large as it fits, with a border.
    Fill ///< Covers the screen, cut where it is too long.
};

/// What failed, and on which screen.
struct DesktopError
{
    QString screen; ///< Id of the screen; empty when it concerns all.
    QString description; ///< One sentence for the log or an alert.
};

/// What a desktop can do; what it cannot is told to the log once by whoever asks for it.
struct DesktopAbilities
{
    bool perScreen = false; ///< Screens can have different pictures.
    bool perWorkspace = false; ///< Virtual desktops carry pictures of their own.
};

/// The desktop pictures of the running desktop. Main thread only. Paths are given and returned as URL text
/// of the form "file://localhost/…" with percent escapes; a folder that the desktop itself rotates through
/// ends in "/". Reading costs memory access only: implementations follow change notifications.
class DesktopPictures
{
public:
    virtual ~DesktopPictures() = default;

    /// Name of the desktop for the log and messages ("GNOME", "XFCE", "X11").
    virtual QString name() const = 0;
    virtual DesktopAbilities abilities() const = 0;

    /// Screens in the desktop's order; never empty while there is a display.
    virtual QList<DesktopScreen> screens() const = 0;

    /// URL text of the picture of a screen (the current workspace); empty when it is not known.
    virtual QString desktopImageUrl(const QString &screen) const = 0;

    /// Sets the picture of one screen (all workspaces that the desktop can reach). Where perScreen is
    /// false it is the picture of all screens. Calls @p done once, when the desktop has taken it or with
    /// what failed; never from within.
    virtual void setDesktopImageUrl(const QString &url, const QString &screen,
                                    DesktopScaling scaling,
                                    std::function<void(tl::expected<void, DesktopError>)> done) = 0;

    /// Called after screens came, went, changed, or the desktop's shell restarted or the machine woke up,
    /// so that the picture may have to be set again.
    std::function<void()> onScreensChanged;
};

} // namespace moravel
