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
        stop();
        m_context.ports.status(Texts::tr("Double-click any thumbnail to set as desktop."));
        return;
    }
    if (m_state.pass == PassState::Pass::None)
        logShownCells();
    m_state.pass = PassState::Pass::Pictures;
    ThumbView &cell = m_context.cells.at(m_state.thumbIndex);
    m_state.currentLongSource = cell.longSourceName();
    if (isWanted(cell)) {
        if (m_context.ports.mustWait()) {
            m_state.heldPictures = true;
            stop();
            return;
        }
        m_downloads.largePicFilePathForThumb(cell);
    }
    ++m_state.thumbIndex;
    loop.schedule(StepSeconds, [this] { loadNextPic(); });
}

bool PicturePass::isWanted(const ThumbView &cell) const
{
    if (cell.thumbPath() == ThumbView::deletedMark() || cell.isHidden())
        return false;
    const QString path =
        m_context.links.picLinkToPath(removeDoubleDomain(cell.picPath()), false, false);
    // A picture that just failed is tried again in the next hour's pass, not at every round.
    if (path.isEmpty() || m_downloads.hasFailed(path) || m_context.platform.files.exists(path))
        return false;
    return !m_context.ports.isLetGo || !m_context.ports.isLetGo(path);
}

void PicturePass::stop()
{
    m_state.thumbIndex = 0;
    m_state.pass = PassState::Pass::None;
}

void PicturePass::catchUp()
{
    if (std::exchange(m_state.heldPictures, false))
        loadNextPic();
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
