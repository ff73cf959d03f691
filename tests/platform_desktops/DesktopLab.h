// SPDX-License-Identifier: MIT
// What the tests against real desktops share. They run inside a lab of tests/labs.
#pragma once

#include "support/Wait.h"

#include "platform/linux/PosixFiles.h"
#include "platform/linux/desktops/DesktopChoice.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QColor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace moravel::testing {

class DesktopWorld;

inline const QPoint Middle(400, 300);

/// Two screens of 800x600 side by side. Panels may cover the uppermost and the lowest 50 pixels.
class DesktopLab : public ::testing::Test
{
protected:
    DesktopLab();
    ~DesktopLab() override;
    void SetUp() override;

    // What differs between desktops ------------------------------------------------------------

    /// Sets the picture of the first screen as the desktop's own tools would.
    virtual void setOutside(const QString &path);
    /// Unplugs the second screen, or plugs it in again.
    virtual void plug(bool in);

    QList<int> m_painted{0, 1}; ///< The screens that the desktop paints at all.
    bool m_shrinksCentred = false; ///< Fits a picture that is centred and larger than the screen.
    QStringList m_refused; ///< The odd names that it cannot keep.

    // Tools ------------------------------------------------------------------------------------

    static int run(const QString &program, const QStringList &arguments);
    /// What a program prints, without white space around it.
    static QString output(const QString &program, const QStringList &arguments);
    std::unique_ptr<DesktopPictures> make();
    /// Writes a picture of one colour with a border of white, a tenth of the width on either side.
    QString picture(const QString &name, QSize size, const QColor &colour) const;

    QString picture(const QString &name, const QColor &colour) const
    {
        return picture(name, {900, 700}, colour);
    }

    /// Sets a picture and waits for the answer; returns the error, empty for none.
    QString set(const QString &path, const QString &screen, DesktopScaling scaling);
    QString shown(const QString &screen) const;
    /// A screenshot of all screens: by the command in LAB_SHOT, which takes a file name, else of the X
    /// display. A shell that paints nothing while nothing moves is woken by LAB_REDRAW.
    virtual QImage shot() const;
    /// Waits until a pixel of the first (0) or second (1) screen has a colour.
    bool seen(int screen, QPoint at, const QColor &colour, int milliseconds = 20'000);
    /// The same for the middle of all painted screens.
    bool seenOnAll(const QColor &colour, int milliseconds = 20'000);
    /// Runs the event loop, and the program's clock if it is there, until a condition holds. The time
    /// that a busy machine takes away from this process does not count.
    bool within(int milliseconds, const std::function<bool()> &condition);
    /// Puts the program's desktop management onto the desktop, for all screens or the main one.
    void startProgram(bool allScreens);

    // What every desktop must do ---------------------------------------------------------------

    void setsOneScreenAndBoth();
    void laysOutEachSizing();
    void takesOddNames();
    /// The same path with another picture.
    void repaintsARewrittenFile();
    /// Also in the program's desktop cell.
    void noticesChangesFromOutside();
    /// A desktop with one picture for all screens; the program says so once.
    void tellsOnceThatOnePictureServesAll();
    void followsThePluggedScreen();
    /// @param restart returns when the desktop is there again.
    void comesBackAfterRestart(const std::function<void()> &restart);
    void knowsWhoFillsTheScreen();
    /// The lab's own function of that name.
    static void restart();

    QTemporaryDir m_folder;
    static inline QTemporaryDir s_support; ///< Kept between the tests, as between two starts.
    PosixFiles m_files;
    std::unique_ptr<DesktopPictures> m_desktop;
    std::unique_ptr<DesktopWorld> m_program; ///< Null until startProgram().
    QString first, second;

private:
    void drive();

    QElapsedTimer m_clock;
    qint64 m_passed = 0; ///< Milliseconds.
};

} // namespace moravel::testing
