// SPDX-License-Identifier: MIT
#include "service/CaptionRefresh.h"

#include "platform/Texts.h"
#include "service/Decoding.h"
#include "service/Logging.h"

#include <QPointer>

namespace moravel {

// The cell, what it was of, and what its label said before.
struct CaptionRefresh::LookUp
{
    QPointer<ThumbView> cell;
    QString date;
    QString label;

    // The cell may have gone on to another day, or its picture may have been deleted.
    bool isStillWanted() const
    {
        return cell && cell->dateString() == date && cell->thumbPath() != ThumbView::deletedMark();
    }
};

CaptionPlusText captionPlusText(const QByteArray &answer)
{
    const QStringList lines = decodedUtf8(answer).value_or(QString()).trimmed().split(u'\n');
    return {lines.value(0), lines.value(1)};
}

CaptionRefresh::CaptionRefresh(const ServiceContext &context, ServiceUrls urls,
                               const HeldFetch &fetch)
    : m_context(context), m_urls(std::move(urls)), m_fetch(fetch)
{ }

void CaptionRefresh::implementRefreshCaption(ThumbView &cell)
{
    if (cell.thumbPath() == ThumbView::deletedMark()) {
        if (m_context.ports.reloadDeletedPic)
            m_context.ports.reloadDeletedPic(cell);
        return;
    }
    if (m_lookedUp.contains(&cell)) // else the notice would be taken for the caption
        return;
    m_lookedUp.insert(&cell);
    const LookUp lookUp{&cell, cell.dateString(), cell.captionField()};
    cell.setCaptionField(Texts::tr("Looking up caption..."));
    if (isInWindow(cell))
        m_context.ports.largePic->showLookingForInfo();
    m_context.platform.loop.schedule(NoticeSeconds, [this, lookUp, key = &cell] {
        if (lookUp.isStillWanted())
            implementRefreshCaption2(lookUp);
        else
            m_lookedUp.remove(key);
    });
}

void CaptionRefresh::implementRefreshCaption2(const LookUp &lookUp)
{
    const QString day = m_context.dates.shortDateFromLocalDate(lookUp.date);
    const QString url = m_urls.captionPlusText(lookUp.cell->shortSourceName(), day);
    const auto *key = lookUp.cell.data();
    m_fetch.get(url, httplimits::Text, [this, lookUp, key](const FetchResult &result) {
        m_lookedUp.remove(key);
        if (!result)
            qCInfo(lcService) << "caption not looked up:" << result.error().description;
        if (lookUp.isStillWanted())
            take(lookUp, captionPlusText(result.value_or(QByteArray())));
    });
}

void CaptionRefresh::take(const LookUp &lookUp, const CaptionPlusText &answer)
{
    ThumbView &cell = *lookUp.cell;
    const QString source = cell.shortSourceName();
    if (answer.text.isEmpty()) {
        cell.setInfoString(QStringLiteral("NEW"));
    } else {
        cell.setInfoString(answer.text);
        m_context.updates.saveNewTextData(answer.text, source, lookUp.date);
    }
    if (answer.caption.isEmpty()) {
        cell.setCaptionField(lookUp.label);
    } else {
        cell.showCaption(answer.caption);
        m_context.updates.saveNewCaption(answer.caption, source, lookUp.date);
    }
    if (isInWindow(cell))
        m_context.ports.largePic->showLargePic(cell);
}

bool CaptionRefresh::isInWindow(const ThumbView &cell) const
{
    const LargePicPort *window = m_context.ports.largePic;
    return window && window->isVisible() && window->isShowing(cell);
}

} // namespace moravel
