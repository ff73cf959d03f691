// SPDX-License-Identifier: MIT
#pragma once

#include "support/PlayedStore.h"
#include "support/Test.h"

#include "service/PictureService.h"

#include <QUrlQuery>

namespace moravel::testing {

/// The whole service client on a real disk, a virtual clock and a service that the test plays.
class World : public PlayedStore
{
public:
    explicit World(const QDateTime &start = QDateTime(QDate(2011, 7, 4), QTime(9, 30)))
        : PlayedStore(start)
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
        service = std::make_unique<PictureService>(ServiceContext{platform, dates, picker, cells,
                                                                  names, folders, records, updates,
                                                                  links, ports},
                                                   u"http://service/potd"_s);
    }

    /// Makes a cell a source, in grid order, all shown.
    void addSources(const QStringList &shortNames)
    {
        for (const QString &name : shortNames)
            cells.addThumbView("Long "_L1 + name, name, loop.now());
    }

    /// Starts the thumbnail pass and lets @p seconds pass.
    void startPass(double seconds = 60)
    {
        service->thumbPass().restart(0.5);
        run(seconds);
    }

    /// Lets time pass in steps of 50 ms, delivering answers as they are due.
    void run(double seconds)
    {
        for (int step = 0; step < qRound(seconds / 0.05); ++step) {
            loop.advance(0.05);
            while (http.deliver() || images.deliver()) { }
        }
    }

    ThumbView &cell(int index) { return cells.at(index); }

    QString dataFile() const { return home.path(u"data/Moravel/Moravel2.txt"_s); }

    /// The stored records.
    QStringList lines() const
    {
        return QString::fromUtf8(TempHome::read(dataFile())).split(u'\n', Qt::SkipEmptyParts);
    }

    /// A sufficient answer for a source and Short date ("7/4/2011").
    static QByteArray goodAnswer(const QString &source, const QString &day)
    {
        const QString id = source + u'-' + QString(day).replace(u'/', u'-');
        return u"http://page/%1\nCaption "
               "%1\nhttp://pic/thumb-%1.jpg\nhttp://pic/%1.jpg\n\n\nInfo %1"_s.arg(id)
                   .toUtf8();
    }

    /// Answers like a service that has a picture for every source and day; tests replace parts of it.
    std::optional<FakeHttp::Answer> serve(const HttpRequest &request)
    {
        if (request.method != "POST")
            return file(request.url.toString());
        QUrlQuery query(QString::fromUtf8(request.body));
        const auto value = [&](const char *key) {
            return query.queryItemValue(QLatin1String(key), QUrl::FullyDecoded);
        };
        return data(value("source"), value("date"));
    }

    DatePicker picker;
    QStringList statuses;
    QStringList newPictures;
    int newsChecks = 0;
    ServicePorts ports;
    std::unique_ptr<PictureService> service;

    /// What the service answers a form POST with; nothing lets it hang.
    std::function<std::optional<FakeHttp::Answer>(const QString &source, const QString &day)> data;
    /// What a GET of a picture or thumbnail is answered with.
    std::function<std::optional<FakeHttp::Answer>(const QString &link)> file;
};

} // namespace moravel::testing
