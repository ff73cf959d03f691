// SPDX-License-Identifier: MIT
#pragma once

#include "support/FakeDesktopPictures.h"
#include "support/FakeHttp.h"
#include "support/FakeImages.h"
#include "support/FakeMainLoop.h"
#include "support/FakePlatform.h"
#include "support/TempHome.h"

#include "desktop/DesktopManagement.h"
#include "desktop/DesktopUrls.h"
#include "platform/linux/PosixFiles.h"
#include "store/LegacyCaptions.h"

namespace moravel::testing {

/// Counts the pictures that are decoded.
class CountingImages : public FakeImages
{
public:
    void load(const QString &path, QSize box, std::function<void(QImage)> done) override
    {
        loads.append(path);
        FakeImages::load(path, box, std::move(done));
    }

    QStringList loads;
};

/// Desktop management on a real disk, a virtual clock and a desktop of two screens, A and B.
class DesktopWorld
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

    QString pictureFolder() const { return home.path(QStringLiteral("Pictures/Moravel/")); }

    TempHome home;
    FakeMainLoop loop;
    FakeHttp http;
    FakeDefaults defaults;
    std::unique_ptr<Files> files;
    FakeAlerts alerts;
    CountingImages images;
    FakeRandom random;
    Platform platform;
    FakeDesktopPictures pictures;
    Dates dates{QStringLiteral("en_US")};
    Preferences preferences;
    ThumbCells cells;
    QMap<QString, QString> names;
    Folders folders;
    LegacyCaptions legacy;
    RecordFile records;
    PictureLinks links;
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
