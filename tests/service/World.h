// SPDX-License-Identifier: MIT
#pragma once

#include "support/PlayedStore.h"

#include "service/PictureService.h"

namespace moravel::testing {

/// The whole service client on a real disk, a virtual clock and a service that the test plays.
class World : public PlayedStore
{
public:
    explicit World(const QDateTime &start = QDateTime(QDate(2011, 7, 4), QTime(9, 30)));

    /// Makes a cell a source, in grid order, all shown.
    void addSources(const QStringList &shortNames);

    /// Starts the thumbnail pass and lets @p seconds pass.
    void startPass(double seconds = 60);

    /// Lets time pass in steps of 50 ms, delivering answers as they are due.
    void run(double seconds);

    ThumbView &cell(int index) { return cells.at(index); }

    QString dataFile() const { return home.path(QStringLiteral("data/Moravel/Moravel2.txt")); }

    /// The stored records.
    QStringList lines() const;

    /// A sufficient answer for a source and Short date ("7/4/2011").
    static QByteArray goodAnswer(const QString &source, const QString &day);

    /// Answers like a service that has a picture for every source and day; tests replace parts of it.
    std::optional<FakeHttp::Answer> serve(const HttpRequest &request);

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
