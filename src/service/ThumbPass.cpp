// SPDX-License-Identifier: MIT
#include "service/ThumbPass.h"

#include "platform/Texts.h"

namespace moravel {

namespace {

constexpr double HourlyPass = 3600; // seconds
constexpr qint64 ShortestGap = 3540; // a minute less, so that the hourly call always passes
constexpr qint64 ShortestGapAfterFailure = 120;

} // namespace

ThumbPass::ThumbPass(const ServiceContext &context, PassState &state, ConnectionQueue &queue,
                     PictureData &data, std::function<void()> loadNextPic)
    : m_context(context)
    , m_state(state)
    , m_queue(queue)
    , m_data(data)
    , m_loadNextPic(std::move(loadNextPic))
{ }

void ThumbPass::restart(double seconds)
{
    m_state.thumbIndex = 0;
    m_state.pass = PassState::Pass::Thumbs;
    m_context.platform.loop.schedule(seconds, [this] { loadNextThumb(); });
}

void ThumbPass::restartUnasked(double seconds)
{
    m_state.thumbIndex = 0;
    m_state.pass = PassState::Pass::None;
    m_context.platform.loop.schedule(seconds, [this] { loadNextThumb(); });
}

bool ThumbPass::catchUp()
{
    const bool held = m_state.heldThumbs;
    if (held)
        loadNextThumb();
    return held;
}

// A pass that restart() has begun was asked for by the user; the others begin by the clock.
bool ThumbPass::hasToWait()
{
    if (m_state.thumbIndex != 0)
        return false;
    m_state.heldThumbs = m_state.pass != PassState::Pass::Thumbs && m_context.ports.mustWait();
    return m_state.heldThumbs;
}

bool ThumbPass::isTooEarly() const
{
    if (m_state.thumbIndex != 0 || !m_state.lastDataCheck)
        return false;
    const qint64 gap = m_queue.connectionFailed() ? ShortestGapAfterFailure : ShortestGap;
    return m_state.lastDataCheck->secsTo(m_context.platform.loop.now()) < gap;
}

void ThumbPass::loadNextThumb(const Then &then)
{
    if (isTooEarly() || hasToWait()) {
        run(then);
        return;
    }
    if (m_state.thumbIndex == 0)
        m_queue.clearConnectionFailed();
    while (m_state.thumbIndex < m_context.cells.count()) {
        m_state.pass = PassState::Pass::Thumbs;
        ThumbView &cell = m_context.cells.at(m_state.thumbIndex);
        const QString day = rolledOverDay();
        m_state.currentLongSource = cell.longSourceName();
        ++m_state.thumbIndex;
        cell.setStartCheckDate(m_context.datePicker.dateValue());
        cell.setWantedDate(m_context.dates.localDateFromShortDate(day));
        if (m_context.dates.shortDateFromLocalDate(cell.dateString()) != day) {
            cell.setSearch(ThumbView::Search::None);
            m_data.getDataForSource(cell.shortSourceName(), day, then);
            return;
        }
    }
    endPass();
    run(then);
}

QString ThumbPass::rolledOverDay()
{
    DatePicker &picker = m_context.datePicker;
    const QDateTime now = m_context.platform.loop.now();
    const QString day = m_context.dates.shortDate(picker.dateValue());
    if (m_context.dates.shortDate(now) == day) {
        picker.userChangeDate = false;
        return day;
    }
    if (m_state.thumbIndex != 0 || picker.userChangeDate)
        return day;
    picker.autoChangeDate = true;
    picker.setMaximumDate(now);
    picker.setDateValue(now);
    picker.userChangeDate = false;
    return m_context.dates.shortDate(picker.dateValue());
}

void ThumbPass::endPass()
{
    MainLoop &loop = m_context.platform.loop;
    m_state.thumbIndex = 0;
    m_state.pass = PassState::Pass::None;
    m_state.lastDataCheck = loop.now();
    m_context.ports.status(Texts::tr("Double-click any thumbnail to set as desktop."));
    loop.schedule(1.0, m_loadNextPic);
    if (m_context.ports.loadNews)
        loop.schedule(1.0, m_context.ports.loadNews);
    loop.schedule(HourlyPass, [this] { loadNextThumb(); });
}

void ThumbPass::refreshDataForThumb(ThumbView &cell, const ServiceUrls &urls)
{
    const QString desktopPic = m_context.cells.desktopThumb().picPath();
    const QString file = m_context.links.picLinkToPath(cell.picPath(), false, false);
    const bool isDesktop = desktopPic == cell.picPath() || desktopPic == file;
    if (isDesktop && !desktopPic.isEmpty() && m_context.ports.rotateDesktop)
        m_context.ports.rotateDesktop(cell);
    const QString source = cell.shortSourceName();
    const QString day = m_context.dates.shortDateFromLocalDate(cell.dateString());
    m_context.updates.deleteDataFor(source, day);
    emptyCell(cell);
    m_state.thumbIndex = cell.tag() - ThumbView::GridTag;
    m_state.pass = PassState::Pass::Thumbs;
    m_state.lastDataCheck = m_context.platform.loop.now().addSecs(-static_cast<qint64>(HourlyPass));
    m_queue.addConnectionToQueue(urls.refreshAll(source, day), cell, ProcessThumbData);
}

void ThumbPass::emptyCell(ThumbView &cell) const
{
    cell.showCaption({});
    cell.blankImage();
    cell.setThumbPath({});
    cell.setPicPath({});
    cell.setParentPath({});
    cell.setInfoString({});
    cell.setUsedAsDesktop(false);
    LargePicPort *window = m_context.ports.largePic;
    if (window && window->isVisible() && window->isShowing(cell))
        window->showLargePic(cell);
}

void ThumbPass::clearThumbs() const
{
    for (const auto &cell : m_context.cells.thumbViews()) {
        cell->setSearch(ThumbView::Search::None);
        cell->showDate({});
        cell->showCaption({});
        cell->showThumbImage({}, {});
        cell->setPicPath({});
        cell->setInfoString({});
    }
}

} // namespace moravel
