// SPDX-License-Identifier: MIT
#pragma once

#include "WindowFixture.h"
#include "support/FakeImages.h"
#include "support/HomeFiles.h"
#include "support/Test.h"

#include "mainwindow/LargePic.h"
#include "mainwindow/LargePicWindow.h"

#include <QSet>

namespace moravel::testing {

/// The large picture window on a private disk; its ports note what they are asked for.
struct LargePicFixture
{
    explicit LargePicFixture(Images &pictures)
        : cells(WindowFixture::images(), {})
        , large({cells, files, pictures, folders, links}, ports())
    {
        cells.createSpecialCells({});
        for (int i = 0; i < 3; ++i)
            fill(cells.addThumbView(u"Source %1"_s.arg(i), u"s%1"_s.arg(i), {}),
                 u"http://x/%1.jpg"_s.arg(i));
    }

    static void fill(ThumbView &cell, const QString &picture)
    {
        cell.showDate(u"July 4, 2011"_s);
        cell.showCaption(u"Caption"_s);
        cell.setInfoString(u"About_it"_s);
        cell.setPicPath(picture);
        cell.showThumbImage(WindowFixture::images().blank, u"http://x/t"_s);
    }

    /// Puts a picture file of @p bytes bytes where the link's picture belongs.
    QString keep(const QString &name, int bytes = 2048) const
    {
        return home.write(u"Pictures/Moravel/"_s + name,
                          QByteArray("IMG").leftJustified(bytes, ' '));
    }

    LargePicPorts ports()
    {
        const auto note = [this](const char *what) {
            return [this, what](ThumbView &cell) {
                calls += u"%1 %2"_s.arg(QLatin1String(what)).arg(cell.tag());
            };
        };
        const auto notePath = [this](const char *what) {
            return [this, what](const QString &path) { calls += QLatin1String(what) + path; };
        };
        LargePicPorts ports;
        ports.currentDesktopPath = [this] { return desktopPath; };
        ports.largePicFilePathForThumb = [this](ThumbView &cell) {
            calls += u"download %1"_s.arg(cell.tag());
            return QString();
        };
        ports.isDownloading = [this](const QString &path) { return downloads.contains(path); };
        ports.showDesktopPrefs = [this] { calls += u"prefs"_s; };
        ports.setDesktop = notePath("desktop ");
        ports.revealFile = notePath("reveal ");
        ports.reloadDeletedPic = note("restore");
        ports.refreshCaption = note("caption");
        ports.deletePic = note("delete");
        ports.shareEmail = note("email");
        ports.findPage = [this](const ThumbView &, std::function<void(const QString &)> done) {
            pageWanted = std::move(done);
        };
        ports.openUrl = notePath("open ");
        return ports;
    }

    /// Finds a part of the window by its name.
    template <typename T = QWidget>
    T *find(const char *name) const
    {
        return large.pic()->findChild<T *>(QLatin1String(name));
    }

    TempHome home;
    HomeFiles files{home};
    FakeAlerts alerts;
    Folders folders{files, alerts};
    PictureLinks links{folders, files};
    ThumbCells cells;
    QString desktopPath;
    QSet<QString> downloads;
    QStringList calls;
    std::function<void(const QString &)> pageWanted;
    LargePic large;
};

} // namespace moravel::testing
