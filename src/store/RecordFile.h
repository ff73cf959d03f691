// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>

namespace moravel {

class Alerts;
class Dates;
class Folders;

/// The picture records: a UTF-8 file with one record a line, seven fields joined by tabs (RecordField.h).
///
/// The key of a record is its date and its short source name; where several share a key, the first
/// counts. Look-ups return "" (or −1) for nothing. Every call reads the file anew, and every change
/// replaces it in one step. A file that cannot be read or is not UTF-8 reads as nothing and is never
/// written: a change then alerts. Main thread only, but for what changing()
/// and openingTextData() return.
class RecordFile
{
public:
    /// Returns the record for a file name from elsewhere, or "".
    using LegacyLookUp = std::function<QString(const QString &fileName)>;

    RecordFile(Folders &folders, Files &files, Alerts &alerts, const Dates &dates,
               LegacyLookUp legacy);

    /// Returns the whole text; "" when there is no file, nothing when it cannot be read.
    std::optional<QString> readTextData() const;

    /// Returns what opens the whole text, UTF-8, on any thread, for a reader who splits it himself. It gives
    /// null when there is none or it cannot be read.
    std::function<std::unique_ptr<FileBytes>()> openingTextData() const;

    /// Replaces the whole text. Returns false after an alert.
    bool writeTextData(const QString &text);

    /// Makes another text of the one there is; nothing leaves it alone.
    using Change = std::function<std::optional<QByteArray>(std::string_view text)>;

    /// Returns what carries out a change, on any thread; other changes wait meanwhile, so that none is lost.
    /// What it returns is for alertNotStored(). A file that cannot be read is left alone.
    std::function<FileResult<void>()> changing(Change change);

    /// Tells the user of a change that was not written. Returns false.
    bool alertNotStored(const FileError &error);

    QString storedDataFor(const QString &source, const QString &onShortDate) const;

    /// Returns the line number, from 0, of the record for an SQL date.
    qsizetype indexOfDataFor(const QString &source, const QString &onSqlDate) const;

    /// Returns the first record in which a link or path ends with "/" and @p fileName, or with its name
    /// without extension (files of links without one have it added).
    /// @param checkingOlds asks the legacy look-up when there is none.
    QString storedDataForFile(const QString &fileName, bool checkingOlds) const;

    /// Returns the caption of the first of @p fileData (records) that mentions the file; reads no file.
    QString captionForFileName(const QString &fileName, const QStringList &withFileData) const;

    /// Returns true when a record of another key mentions the file.
    bool isAnyoneUsingPicFile(const QString &fileName, const QString &exceptForSource,
                              const QString &onShortDate) const;

    /// Puts a record in the place of the one with its key, or at the end. A line feed in it would make
    /// two records of it and becomes a space. Returns false when nothing was stored; failures of the file
    /// alert.
    bool saveStoredData(const QString &record);

    /// Removes the record for a key, and every line identical to it. Returns false when there is none;
    /// failures of the file alert.
    bool removeDataFor(const QString &source, const QString &onSqlDate);

private:
    class Text;
    FileResult<Text> load(const QString &path) const;
    Text loadOrNothing() const;
    bool write(const QString &path, std::initializer_list<std::string_view> pieces);

    Folders &m_folders;
    Files &m_files;
    Alerts &m_alerts;
    const Dates &m_dates;
    LegacyLookUp m_legacy;
    mutable QByteArray m_validStamp; ///< Of the state of the file that was last found to be UTF-8.
    std::mutex m_changing; ///< From the reading to the writing of a change.
};

} // namespace moravel
