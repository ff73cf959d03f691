// SPDX-License-Identifier: MIT
#include "World.h"

#include <QUrlQuery>

namespace moravel::testing {

World::World(const QDateTime &start) : PlayedStore(start)
{
    picker.setMaximumDate(loop.now());
    picker.setDateValue(loop.now());
    ports.showStatus = [this](const QString &text) { statuses.append(text); };
    ports.loadNews = [this] { ++newsChecks; };
    ports.newPicture = [this](const ThumbView &cell, const QString &path) {
        newPictures.append(cell.shortSourceName() + u' ' + path.section(u'/', -1));
    };
    data = [](const QString &source, const QString &day) {
        return FakeHttp::Answer{goodAnswer(source, day)};
    };
    file = [](const QString &) { return FakeHttp::Answer{"IMG picture bytes"}; };
    http.answer = [this](const HttpRequest &request) { return serve(request); };
    service =
        std::make_unique<PictureService>(ServiceContext{platform, dates, picker, cells, names,
                                                        folders, records, updates, links, ports},
                                         QStringLiteral("http://service/potd"));
}

void World::addSources(const QStringList &shortNames)
{
    for (const QString &name : shortNames)
        cells.addThumbView(QLatin1String("Long ") + name, name, loop.now());
}

void World::startPass(double seconds)
{
    service->thumbPass().restart(0.5);
    run(seconds);
}

void World::run(double seconds)
{
    for (int step = 0; step < qRound(seconds / 0.05); ++step) {
        loop.advance(0.05);
        while (http.deliver() || images.deliver()) { }
    }
}

QStringList World::lines() const
{
    return QString::fromUtf8(TempHome::read(dataFile())).split(u'\n', Qt::SkipEmptyParts);
}

QByteArray World::goodAnswer(const QString &source, const QString &day)
{
    const QString id = source + u'-' + QString(day).replace(u'/', u'-');
    return QStringLiteral("http://page/%1\nCaption "
                          "%1\nhttp://pic/thumb-%1.jpg\nhttp://pic/%1.jpg\n\n\nInfo %1")
        .arg(id)
        .toUtf8();
}

std::optional<FakeHttp::Answer> World::serve(const HttpRequest &request)
{
    if (request.method != "POST")
        return file(request.url.toString());
    QUrlQuery query(QString::fromUtf8(request.body));
    const auto value = [&](const char *key) {
        return query.queryItemValue(QLatin1String(key), QUrl::FullyDecoded);
    };
    return data(value("source"), value("date"));
}

} // namespace moravel::testing
