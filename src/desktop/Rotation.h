// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopContext.h"

#include <optional>
#include <vector>

namespace moravel {

class DesktopSetter;

/// Who wants another desktop. After a button of a cell the thumbnail pass is left alone.
enum class RotateSender { Button, TimerOrMenu };

/// Changes the desktop every so many minutes to a picture taken at random.
class Rotation
{
public:
    Rotation(const DesktopContext &context, DesktopSetter &setter);

    /// Changes the desktop now and starts a full interval.
    void rotateDesktop(RotateSender sender);
    /// Goes back to the desktop before; once more goes forth again.
    void previousDesktop();
    /// Puts the next change off to an hour from now; the interval stays as the user set it.
    void holdDesktopForOneHour();

    /// Starts the interval anew, or ends the rotation when the user wants none.
    void setupNextDesktopRotate();
    /// Changes the desktop after so many seconds (the first change after the grid was built).
    void scheduleRotateDesktop(double seconds);
    /// Makes up, once, for a change that had to wait.
    void catchUp();
    /// At the start of the program: the first change is due as soon as there are pictures.
    void markFirstRotationDue();

    QString rotateInfoText() const;
    /// Shows the status text and the keep button, now and every 30 seconds.
    void showRotateInfo();

    std::optional<QDateTime> nextDesktopRotate() const { return m_nextDesktopRotate; }

private:
    void rotateWhenDue();
    QString whyNotNow() const;
    std::vector<ThumbView *> shuffledCells();
    QString usablePicture(const ThumbView &cell) const;
    void useCell(ThumbView &cell, const QString &path, RotateSender sender);
    void rotateFromFolder(const QString &folder, const QStringList &listing);

    const DesktopContext &m_context;
    DesktopSetter &m_setter;
    std::optional<QDateTime> m_nextDesktopRotate;
    std::vector<DelayedCallHandle> m_rotateCalls;
    DelayedCallHandle m_rotateInfoTimer;
    bool m_waits = false; ///< A change was due and may not be made yet.
};

} // namespace moravel
