// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <QMap>

namespace moravel {

class Dates;
class Folders;

/// The captions file of earlier versions: Mac OS Roman, lines ended by carriage returns, each with SQL
/// date, long source name, file name and caption, separated by tabs. It is read, and lines are taken out
/// of it; nothing is ever added.
class LegacyCaptions
{
public:
    /// @param sourceNames short to long source names, as they are at each call.
    LegacyCaptions(Folders &folders, Files &files, const Dates &dates,
                   const QMap<QString, QString> &sourceNames);

    /// Returns the whole text; "" when there is none.
    QString readOldTextData() const;

    /// Returns the line of a picture file as a picture record, or "". The picture serves as its own
    /// thumbnail.
    QString oldStoredDataForFile(const QString &fileName) const;

    /// Removes the first line of a source and day, and every line identical to it. Failures are logged.
    void deleteOldDataFor(const QString &source, const QString &onShortDate);

private:
    QString path() const;
    std::unique_ptr<FileBytes> load(const QString &path) const;
    QString shortNameOf(const QString &longName) const;

    Folders &m_folders;
    Files &m_files;
    const Dates &m_dates;
    const QMap<QString, QString> &m_sourceNames;
};

} // namespace moravel
