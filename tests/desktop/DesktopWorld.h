// SPDX-License-Identifier: MIT
#pragma once

#include "support/FakeDesktopPictures.h"
#include "support/PlayedStore.h"
#include "support/Test.h"

#include "desktop/DesktopManagement.h"
#include "desktop/DesktopUrls.h"

namespace moravel::testing {

/// Desktop management on a real disk, a virtual clock and a desktop of two screens, A and B.
class DesktopWorld : public PlayedStore
{
public:
    DesktopWorld()
    {
        ports.isDownloading = [this](const QString &path) { return path == downloading; };
        ports.pixelSize = [this](const QString &path, const std::function<void(QSize)> &done) {
            images.check(path,
                         [this, done](QSize size) { done(size.isEmpty() ? size : pixelSize); });
        };
        ports.fileStamp = [](const QString &path) {
            const QFileInfo info(path);
            return info.exists() ? QByteArray::number(info.size()) : QByteArray();
        };
        ports.ask = [this](const DesktopQuestion &question, std::function<void(int)> done) {
            questions.append(question);
            answer = std::move(done);
        };
        ports.loadNextThumb = [this] { ++nextThumbs; };
        ports.sufficientData = [](const QStringList &fields) { return fields.size() >= 7; };
        ports.longSourceName = [](const QString &name) { return name.toUpper(); };
        ports.reloadDeletedPic = [this](ThumbView &) { others.append(u"reload"_s); };
        ports.showNextChange = [this](const QString &text) { nextChange = text; };
        ports.showKeepButton = [this](bool visible) { keepButton = visible; };
        ports.showDockTile = [this](const QImage &tile) { tiles.append(tile); };
        ports.applicationIcon = [] {
            QImage icon(64, 64, QImage::Format_RGB32);
            icon.fill(Qt::yellow);
            return icon;
        };
        ports.activate = [this] { others.append(u"activate"_s); };
        ports.showLargePic = [this](ThumbView &cell) {
            others.append(u"large %1"_s.arg(cell.tag()));
        };
        ports.revealFile = [this](const QString &path) {
            others.append(u"reveal "_s + path.section(u'/', -1));
        };
        ports.runDesktopPrefsScript = [this](const std::function<void(const QString &)> &done) {
            done(scriptError);
        };
        desktop = std::make_unique<DesktopManagement>(DesktopContext{
            platform, pictures, dates, preferences, cells, folders, records, links, ports});
    }

    /// Writes a picture into the Picture folder and returns its path.
    QString picture(const QString &name, qint64 bytes = 4) const
    {
        const QString path = home.write(u"Pictures/Moravel/"_s + name, "IMG!");
        QFile(path).resize(bytes);
        return path;
    }

    /// Adds a cell of the grid that shows a picture of that name, which is made.
    ThumbView &cell(const QString &source, const QString &pictureName)
    {
        picture(pictureName);
        ThumbView &cell = cells.addThumbView(source.toUpper(), source, loop.now());
        cell.setPicPath(u"http://site/"_s + pictureName);
        cell.setThumbPath(u"http://site/t_"_s + pictureName);
        return cell;
    }

    void addRecord(const QString &fields)
    {
        records.saveStoredData(QString(fields).replace(u'|', u'\t'));
    }

    /// Shows a file on a screen, behind the program's back.
    void show(const QString &path, const QString &screen = u"A"_s)
    {
        pictures.shown[screen] = desktopUrlFromPath(path);
    }

    QString shownOn(const QString &screen = u"A"_s) const
    {
        return desktopPathFromUrl(pictures.shown.value(screen));
    }

    /// Delivers all answers that are due.
    void deliver()
    {
        while (images.deliver() || pictures.deliver()) { }
    }

    /// Lets time pass in steps of a quarter of a second.
    void run(double seconds)
    {
        for (double passed = 0; passed < seconds; passed += 0.25) {
            deliver();
            loop.advance(0.25);
        }
        deliver();
    }

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
