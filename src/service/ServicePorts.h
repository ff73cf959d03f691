// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/ThumbView.h"

#include <functional>
#include <optional>

namespace moravel {

/// The large picture window as the downloads see it.
class LargePicPort
{
public:
    virtual ~LargePicPort() = default;

    virtual bool isVisible() const = 0;
    /// The file that the window shows or waits for.
    virtual QString currentLargePicPath() const = 0;
    virtual bool isShowing(const ThumbView &cell) const = 0;
    virtual void showLargePic(ThumbView &cell) = 0;

    /// Shows, in place of the text, that caption and text are being looked up.
    virtual void showLookingForInfo() { }

    /// Shows the progress of the file it waits for; no percentage means an unknown length.
    virtual void showProgress(std::optional<float> percent, const QString &text) = 0;
    virtual void hideProgress() = 0;
    virtual void hideCantShow() = 0;

    /// Shows, in place of the progress, that the file it waits for does not come.
    virtual void showFailure() { }

    /// Shows a finished file, and its size in the caption text.
    virtual void displayPicFile(const QString &path) = 0;
};

/// What the service client needs of its neighbours. What is empty is not there.
struct ServicePorts
{
    std::function<void(const QString &)> showStatus;
    std::function<QString()> currentDesktopPath;
    /// Changes the desktop because the picture of the desktop is being fetched anew.
    std::function<void(ThumbView &)> rotateDesktop;
    /// Restores the deleted picture of a cell.
    std::function<void(ThumbView &)> reloadDeletedPic;
    std::function<void()> loadNews;
    /// Why nothing may be fetched now that the user did not ask for; empty when it may.
    std::function<QString()> whyNotNow;
    /// Tells whether a picture file was let go to save space, and stays away until it is asked for.
    std::function<bool(const QString &path)> isLetGo;
    /// A picture file has come.
    std::function<void(const QString &path)> pictureArrived;
    /// Tells the user of a finished picture file.
    std::function<void(const ThumbView &, const QString &path)> newPicture;
    LargePicPort *largePic = nullptr;

    /// Tells whether what the user did not ask for has to wait, and says so in the status line.
    bool mustWait() const
    {
        const QString why = whyNotNow ? whyNotNow() : QString();
        if (!why.isEmpty())
            status(why);
        return !why.isEmpty();
    }

    void status(const QString &text) const
    {
        if (showStatus)
            showStatus(text);
    }
};

} // namespace moravel
