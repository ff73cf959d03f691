// SPDX-License-Identifier: MIT
#pragma once

#include "support/FakePlatform.h"
#include "support/Test.h"

#include "base/Dates.h"
#include "platform/linux/PosixFiles.h"
#include "store/Folders.h"
#include "store/LegacyCaptions.h"
#include "store/RecordFile.h"
#include "store/RecordUpdates.h"

namespace moravel::testing {

/// A real disk below a private folder, with writes that can be made to fail.
class StoreFiles : public PosixFiles
{
public:
    explicit StoreFiles(const QString &home)
        : folders{home + u"/Pictures"_s, home + u"/share"_s} { }

    StandardFolders standardFolders() const override { return folders; }

    FileResult<void> writeAtomically(const QString &path,
                                     std::initializer_list<std::string_view> pieces) override
    {
        ++writes;
        if (!writeError.isEmpty())
            return tl::make_unexpected(FileError{path, writeError});
        return PosixFiles::writeAtomically(path, pieces);
    }

    FileResult<void> move(const QString &from, const QString &to) override
    {
        if (!moveError.isEmpty())
            return tl::make_unexpected(FileError{from, moveError});
        return PosixFiles::move(from, to);
    }

    StandardFolders folders;
    QString writeError;
    QString moveError;
    int writes = 0;
};

/// The whole store in a private home.
struct Store
{
    explicit Store(const QString &home) : files(home) { }

    StoreFiles files;
    FakeAlerts alerts;
    Dates dates{u"en_US"_s};
    QMap<QString, QString> sourceNames;
    Folders folders{files, alerts};
    LegacyCaptions legacy{folders, files, dates, sourceNames};
    RecordFile records{folders, files, alerts, dates,
                       [this](const QString &name) { return legacy.oldStoredDataForFile(name); }};
    RecordUpdates updates{records, legacy, dates};
};

struct StoreWorld : Store
{
    StoreWorld() : StoreWorld(std::make_unique<TempHome>()) { }

    QString dataPath() const { return home->path(u"share/Moravel/Moravel2.txt"_s); }

    QByteArray data() const { return TempHome::read(dataPath()); }

    void setData(const QByteArray &bytes) { home->write(u"share/Moravel/Moravel2.txt"_s, bytes); }

    QString legacyPath() const { return home->path(u"Pictures/Moravel/Moravel-captions.txt"_s); }

    QByteArray legacyData() const { return TempHome::read(legacyPath()); }

    void setLegacyData(const QByteArray &bytes)
    {
        home->write(u"Pictures/Moravel/Moravel-captions.txt"_s, bytes);
    }

    /// What was alerted since the last call, as "title|text".
    QStringList takeAlerts()
    {
        QStringList list;
        for (const auto &shown : std::exchange(alerts.shown, {}))
            list.append(shown.title + u'|' + shown.text);
        return list;
    }

    std::unique_ptr<TempHome> home;

private:
    explicit StoreWorld(std::unique_ptr<TempHome> folder)
        : Store(folder->path()), home(std::move(folder))
    { }
};

} // namespace moravel::testing
