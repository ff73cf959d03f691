// SPDX-License-Identifier: MIT
#include "service/PictureData.h"

#include "service/Logging.h"
#include "service/PictureFields.h"

namespace moravel {

namespace {

constexpr qint64 DaySeconds = 86400;
constexpr qint64 FurthestBack = 7 * DaySeconds; // from the picker's moment to the start of a day

} // namespace

PictureData::PictureData(const ServiceContext &context, ServiceUrls urls, ConnectionQueue &queue)
    : m_context(context), m_urls(std::move(urls)), m_queue(queue)
{
    m_queue.setProcessMethod(ProcessThumbData, [this](const QString &answer, const Then &then) {
        processThumbData(answer, then);
    });
}

void PictureData::getDataForSource(const QString &name, const QString &onDate, const Then &then)
{
    ThumbView *cell = m_context.cells.thumbForSource(name);
    if (!cell) {
        run(then);
        return;
    }
    cell->showDate(m_context.dates.localDateFromShortDate(onDate));
    QStringList fields = m_context.records.storedDataFor(name, onDate).split(u'\t');
    if (fields.size() >= 7 && fields[2].isEmpty())
        fields[2] = fields[3];
    if (sufficientData(fields)) {
        displayThumbData(fields, *cell, then);
        return;
    }
    m_queue.addConnectionToQueue(m_urls.all(name, onDate), *cell, ProcessThumbData);
    run(then);
}

void PictureData::processThumbData(const QString &answer, const Then &then)
{
    ThumbView *cell = m_queue.takeProcessThumb();
    if (!cell) {
        run(then);
        return;
    }
    const QStringList lines = answer.trimmed().split(u'\n');
    QString localDate = cell->dateString();
    if (localDate.isEmpty())
        localDate = m_context.dates.longDate(m_context.datePicker.dateValue());
    if (!sufficientData(lines)) {
        qCInfo(lcService) << cell->shortSourceName() << localDate
                          << "has no picture:" << lines[0].left(200);
        tryDayBefore(*cell, localDate, then);
        return;
    }
    const QString text = record(lines, *cell, localDate).join(u'\t');
    const QString source = cell->shortSourceName();
    // Shown, kept, and shown once more: a tab inside a value shifts the fields of what is shown just as
    // it will when the record is read back.
    displayThumbData(text.split(u'\t'), *cell, [this, text, source, then] {
        m_context.records.saveStoredData(text);
        m_displayThumbForSource(source, then);
    });
}

QStringList PictureData::record(const QStringList &lines, const ThumbView &cell,
                                const QString &localDate) const
{
    const Dates &dates = m_context.dates;
    return {dates.sqlDateFromShortDate(dates.shortDateFromLocalDate(localDate)),
            cell.shortSourceName(),
            lines[2],
            chosenPictureLink(lines),
            lines[0],
            lines[1],
            cleanedInfoText(lines[6])};
}

void PictureData::tryDayBefore(ThumbView &cell, const QString &localDate, const Then &then)
{
    const QString source = cell.shortSourceName();
    const std::optional<QDateTime> day = m_context.dates.dateFromLocalString(localDate);
    // Seconds, not calendar days: across a change to summer time the step lands a day earlier.
    const QDateTime earlier = day ? day->addSecs(-DaySeconds) : QDateTime();
    if (!day || earlier.secsTo(cell.startCheckDate()) > FurthestBack) {
        if (cell.search() == ThumbView::Search::None) // else the last day was not answered for
            cell.setSearch(ThumbView::Search::Nothing);
        m_displayThumbForSource(source, then);
        return;
    }
    const QString shortDate = m_context.dates.shortDate(earlier);
    cell.showDate(m_context.dates.localDateFromShortDate(shortDate));
    getDataForSource(source, shortDate, then);
}

void PictureData::displayThumbData(const QStringList &fields, ThumbView &inThumb, const Then &then)
{
    if (inThumb.thumbPath() != fields[2]) {
        inThumb.showDate(m_context.dates.localDateFromSqlDate(fields[0]));
        inThumb.setThumbPath(fields[2]);
        inThumb.setInfoString(fields[6]);
        inThumb.setPicPath(fields[3]);
        inThumb.setParentPath(fields[4]);
        const QString file = m_context.links.picLinkToPath(fields[3], false, false);
        const auto &desktop = m_context.ports.currentDesktopPath;
        inThumb.setUsedAsDesktop(!file.isEmpty() && desktop && desktop() == file);
    }
    inThumb.showCaption(fields[2] == ThumbView::deletedMark() ? QStringLiteral("Deleted.")
                                                              : fields[5]);
    m_displayThumbForSource(inThumb.shortSourceName(), then);
}

} // namespace moravel
