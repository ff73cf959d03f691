// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

namespace moravel {

class Dates;
class LegacyCaptions;
class RecordFile;

/// Changes to records that are already stored. A record without the field to change, and a key without
/// record, are left alone.
class RecordUpdates
{
public:
    RecordUpdates(RecordFile &records, LegacyCaptions &legacy, const Dates &dates);

    /// Stores a caption as given; it is one line without tabs.
    void saveNewCaption(const QString &caption, const QString &forSource,
                        const QString &onLocalDate);

    /// Stores a descriptive text, line ends and pairs of spaces made into single spaces.
    void saveNewTextData(const QString &text, const QString &forSource, const QString &onLocalDate);

    /// Marks a picture as deleted; removes it from the legacy captions when it is known only there.
    void storeDeletionForSource(const QString &source, const QString &onLocalDate);

    /// Marks a picture as deleted and returns the thumbnail link it had, or "".
    QString storeDeletionForFileNameAndReturnThumb(const QString &fileName);

    /// Runs work on a worker thread, then what is done with it on the main one.
    using InBackground =
        std::function<void(std::function<void()> work, std::function<void()> done)>;

    /// Does so for many files, with one reading and one writing, in the background: a hundred thousand records
    /// take long to write. @p done gets the links in the order of the names, once.
    void storeDeletionsForFileNames(const QStringList &fileNames, const InBackground &inBackground,
                                    std::function<void(const QStringList &thumbs)> done);

    /// Gives a picture a thumbnail link, which ends its being deleted.
    void storeThumbForSource(const QString &source, const QString &onShortDate,
                             const QString &withNewThumb);

    /// Removes a record, so that it is fetched anew; removes it from the legacy captions when it is known
    /// only there.
    void deleteDataFor(const QString &source, const QString &onShortDate);

private:
    QString replaceField(const QString &record, int field, const QString &value);

    RecordFile &m_records;
    LegacyCaptions &m_legacy;
    const Dates &m_dates;
};

} // namespace moravel
