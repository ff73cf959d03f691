// SPDX-License-Identifier: MIT
// For tests that run inside a lab of tests/labs, on an X screen.
#pragma once

#include "support/Wait.h"

#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>

#include <optional>

namespace moravel::testing {

struct Ended
{
    int code = -1;
    QByteArray output;
};

/// Runs a program to its end while our own event loop goes on.
inline Ended runProgram(const QStringList &command)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(command.first(), command.mid(1));
    EXPECT_TRUE(waitFor([&] { return process.state() == QProcess::NotRunning; }));
    return {process.exitCode(), process.readAllStandardOutput()};
}

inline QImage screenshot()
{
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage();
}

/// A place well inside an area of that colour on the screen, the uppermost one; nothing without one.
inline std::optional<QPoint> findColour(const QColor &colour)
{
    const QImage shot = screenshot();
    for (int y = 0; y < shot.height() - 4; ++y)
        for (int x = 0; x < shot.width() - 4; ++x)
            if (shot.pixelColor(x, y) == colour && shot.pixelColor(x + 4, y + 4) == colour)
                return QPoint(x + 2, y + 2);
    return std::nullopt;
}

inline void clickAt(QPoint place, int button = 1)
{
    const QString line = QStringLiteral("xdotool mousemove %1 %2 sleep 0.3 click %3")
                             .arg(place.x())
                             .arg(place.y())
                             .arg(button);
    EXPECT_EQ(runProgram(line.split(u' ')).code, 0);
}

/// Keeps a screenshot in the file that LAB_SHOT names, to be looked at.
inline void keepShot()
{
    if (const QString file = qEnvironmentVariable("LAB_SHOT"); !file.isEmpty())
        screenshot().save(file);
}

} // namespace moravel::testing
