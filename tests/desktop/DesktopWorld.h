// SPDX-License-Identifier: MIT
#pragma once

#include "support/FakeDesktopPictures.h"
#include "support/PlayedStore.h"

#include "desktop/DesktopManagement.h"
#include "desktop/DesktopUrls.h"

namespace moravel::testing {

/// Desktop management on a real disk, a virtual clock and a desktop of two screens, A and B.
class DesktopWorld : public PlayedStore
{
public:
    DesktopWorld();

    /// Writes a picture into the Picture folder and returns its path.
    QString picture(const QString &name, qint64 bytes = 4) const;
    /// Adds a cell of the grid that shows a picture of that name, which is made.
    ThumbView &cell(const QString &source, const QString &pictureName);
    void addRecord(const QString &fields);
    /// Shows a file on a screen, behind the program's back.
    void show(const QString &path, const QString &screen = QStringLiteral("A"));
    QString shownOn(const QString &screen = QStringLiteral("A")) const;
    /// Delivers all answers that are due.
    void deliver();
    /// Lets time pass in steps of a quarter of a second.
    void run(double seconds);

    FakeDesktopPictures pictures;
    DesktopPorts ports;

    QString downloading;
    QSize pixelSize{1024, 768};
    QList<DesktopQuestion> questions;
    std::function<void(int)> answer;
    int nextThumbs = 0;
    QString nextChange;
    bool keepButton = false;
    QList<QImage> tiles;
    QStringList others; ///< Calls of the remaining ports.
    QString scriptError;
    std::unique_ptr<DesktopManagement> desktop;
};

} // namespace moravel::testing
