// SPDX-License-Identifier: MIT
#include "service/PicturePass.h"

#include "platform/Texts.h"
#include "service/Logging.h"

#include <algorithm>

namespace moravel {

namespace {

constexpr double StepSeconds = 0.5;
constexpr double BusySeconds = 3.0;

} // namespace

PicturePass::PicturePass(const ServiceContext &context, PassState &state, ConnectionQueue &queue)
    : m_context(context)
    , m_state(state)
    , m_queue(queue)
    , m_downloads(context, [this] { downloadFinished(); })
{ }

void PicturePass::loadNextPic()
{
    MainLoop &loop = m_context.platform.loop;
    if (!m_queue.isEmpty()) {
        loop.schedule(BusySeconds, [this] { loadNextPic(); });
        return;
    }
    // A thumbnail pass that has begun meanwhile needs the index for itself; its end starts us again.
    if (m_queue.connectionFailed() || m_state.pass == PassState::Pass::Thumbs)
        return;
    if (m_state.thumbIndex >= m_context.cells.count()) {
        m_state.thumbIndex = 0;
        m_state.pass = PassState::Pass::None;
        m_context.ports.status(Texts::tr("Double-click any thumbnail to set as desktop."));
        return;
    }
    if (m_state.pass == PassState::Pass::None)
        logShownCells();
    m_state.pass = PassState::Pass::Pictures;
    ThumbView &cell = m_context.cells.at(m_state.thumbIndex);
    m_state.currentLongSource = cell.longSourceName();
    const bool wanted = cell.thumbPath() != ThumbView::deletedMark() && !cell.isHidden();
    // A picture that just failed is tried again in the next hour's pass, not at every round.
    if (wanted
        && !m_downloads.hasFailed(m_context.links.picLinkToPath(cell.picPath(), false, false)))
        m_downloads.largePicFilePathForThumb(cell);
    ++m_state.thumbIndex;
    loop.schedule(StepSeconds, [this] { loadNextPic(); });
}

void PicturePass::logShownCells() const
{
    const auto &cells = m_context.cells.thumbViews();
    const auto shown = std::count_if(cells.begin(), cells.end(), [](const auto &cell) {
        return !cell->thumbPath().isEmpty() && !cell->isSpinning();
    });
    qCInfo(lcService).noquote() << "cells shown:" << shown << "of" << cells.size();
}

void PicturePass::downloadFinished()
{
    if (m_state.pass != PassState::Pass::Thumbs)
        ++m_state.thumbIndex;
    m_context.platform.loop.schedule(StepSeconds, [this] { loadNextPic(); });
}

} // namespace moravel
