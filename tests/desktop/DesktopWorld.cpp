// SPDX-License-Identifier: MIT
#include "DesktopWorld.h"

#include <QFileInfo>

namespace moravel::testing {

DesktopWorld::DesktopWorld()
{
    ports.isDownloading = [this](const QString &path) { return path == downloading; };
    ports.pixelSize = [this](const QString &path, const std::function<void(QSize)> &done) {
        images.check(path, [this, done](QSize size) { done(size.isEmpty() ? size : pixelSize); });
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
    ports.reloadDeletedPic = [this](ThumbView &) { others.append(QStringLiteral("reload")); };
    ports.showNextChange = [this](const QString &text) { nextChange = text; };
    ports.showKeepButton = [this](bool visible) { keepButton = visible; };
    ports.showDockTile = [this](const QImage &tile) { tiles.append(tile); };
    ports.applicationIcon = [] {
        QImage icon(64, 64, QImage::Format_RGB32);
        icon.fill(Qt::yellow);
        return icon;
    };
    ports.activate = [this] { others.append(QStringLiteral("activate")); };
    ports.showLargePic = [this](ThumbView &cell) {
        others.append(QStringLiteral("large %1").arg(cell.tag()));
    };
    ports.revealFile = [this](const QString &path) {
        others.append(QStringLiteral("reveal ") + path.section(u'/', -1));
    };
    ports.runDesktopPrefsScript = [this](const std::function<void(const QString &)> &done) {
        done(scriptError);
    };
    desktop = std::make_unique<DesktopManagement>(DesktopContext{
        platform, pictures, dates, preferences, cells, folders, records, links, ports});
}

QString DesktopWorld::picture(const QString &name, qint64 bytes) const
{
    const QString path = home.write(QStringLiteral("Pictures/Moravel/") + name, "IMG!");
    QFile(path).resize(bytes);
    return path;
}

ThumbView &DesktopWorld::cell(const QString &source, const QString &pictureName)
{
    picture(pictureName);
    ThumbView &cell = cells.addThumbView(source.toUpper(), source, loop.now());
    cell.setPicPath(QStringLiteral("http://site/") + pictureName);
    cell.setThumbPath(QStringLiteral("http://site/t_") + pictureName);
    return cell;
}

void DesktopWorld::addRecord(const QString &fields)
{
    records.saveStoredData(QString(fields).replace(u'|', u'\t'));
}

void DesktopWorld::show(const QString &path, const QString &screen)
{
    pictures.shown[screen] = desktopUrlFromPath(path);
}

QString DesktopWorld::shownOn(const QString &screen) const
{
    return desktopPathFromUrl(pictures.shown.value(screen));
}

void DesktopWorld::deliver()
{
    while (images.deliver() || pictures.deliver()) { }
}

void DesktopWorld::run(double seconds)
{
    for (double passed = 0; passed < seconds; passed += 0.25) {
        deliver();
        loop.advance(0.25);
    }
    deliver();
}

} // namespace moravel::testing
