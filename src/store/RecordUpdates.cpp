// SPDX-License-Identifier: MIT
#include "store/RecordUpdates.h"

#include "base/Dates.h"
#include "store/LegacyCaptions.h"
#include "store/Logging.h"
#include "store/RecordBatch.h"
#include "store/RecordField.h"
#include "store/RecordFile.h"

namespace moravel {

namespace {

QString deletedMark()
{
    return QStringLiteral("DELETED");
}

/// One pass over pairs of spaces: four become two, three become two.
QString cleanedText(QString text)
{
    return text.replace(u'\r', u' ')
        .replace(u'\n', u' ')
        .replace(QLatin1String("  "), QLatin1String(" "));
}

} // namespace

RecordUpdates::RecordUpdates(RecordFile &records, LegacyCaptions &legacy, const Dates &dates)
    : m_records(records), m_legacy(legacy), m_dates(dates)
{ }

/// Stores @p record ("" for none) with another value in a field. Returns the old value.
QString RecordUpdates::replaceField(const QString &record, int field, const QString &value)
{
    QStringList fields = record.split(u'\t');
    if (record.isEmpty() || fields.size() <= field) {
        qCInfo(lcStore) << "no field" << field << "to change in" << record.left(200);
        return {};
    }
    QString old = std::exchange(fields[field], value);
    m_records.saveStoredData(fields.join(u'\t'));
    return old;
}

void RecordUpdates::saveNewCaption(const QString &caption, const QString &forSource,
                                   const QString &onLocalDate)
{
    const QString day = m_dates.shortDateFromLocalDate(onLocalDate);
    replaceField(m_records.storedDataFor(forSource, day), CaptionField, caption);
}

void RecordUpdates::saveNewTextData(const QString &text, const QString &forSource,
                                    const QString &onLocalDate)
{
    const QString day = m_dates.shortDateFromLocalDate(onLocalDate);
    replaceField(m_records.storedDataFor(forSource, day), InfoField, cleanedText(text));
}

void RecordUpdates::storeDeletionForSource(const QString &source, const QString &onLocalDate)
{
    const QString day = m_dates.shortDateFromLocalDate(onLocalDate);
    const QString record = m_records.storedDataFor(source, day);
    if (record.isEmpty())
        m_legacy.deleteOldDataFor(source, day);
    else
        replaceField(record, ThumbField, deletedMark());
}

QString RecordUpdates::storeDeletionForFileNameAndReturnThumb(const QString &fileName)
{
    return replaceField(m_records.storedDataForFile(fileName, false), ThumbField, deletedMark());
}

void RecordUpdates::storeDeletionsForFileNames(const QStringList &fileNames,
                                               const InBackground &inBackground,
                                               std::function<void(const QStringList &thumbs)> done)
{
    struct Work
    {
        QStringList thumbs;
        FileResult<void> stored;
    };

    const auto work = std::make_shared<Work>();
    work->thumbs.resize(fileNames.size());
    const auto change = [work, fileNames](std::string_view text) {
        RecordBatch batch(text, fileNames);
        for (qsizetype i = 0; i < fileNames.size(); ++i)
            work->thumbs[i] = batch.replaceField(fileNames[i], ThumbField, deletedMark());
        return batch.hasChanged() ? std::optional(batch.text()) : std::nullopt;
    };
    inBackground([work, store = m_records.changing(change)] { work->stored = store(); },
                 [this, work, done = std::move(done)] {
                     if (!work->stored)
                         m_records.alertNotStored(work->stored.error());
                     done(work->thumbs);
                 });
}

void RecordUpdates::storeThumbForSource(const QString &source, const QString &onShortDate,
                                        const QString &withNewThumb)
{
    replaceField(m_records.storedDataFor(source, onShortDate), ThumbField, withNewThumb);
}

void RecordUpdates::deleteDataFor(const QString &source, const QString &onShortDate)
{
    if (!m_records.removeDataFor(source, m_dates.sqlDateFromShortDate(onShortDate)))
        m_legacy.deleteOldDataFor(source, onShortDate);
}

} // namespace moravel
