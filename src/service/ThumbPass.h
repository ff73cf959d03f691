// SPDX-License-Identifier: MIT
#pragma once

#include "service/ConnectionQueue.h"
#include "service/PassState.h"
#include "service/PictureData.h"
#include "service/ServiceContext.h"

namespace moravel {

/// Fills the cells for the chosen date, one after the other, and starts again every hour.
class ThumbPass
{
public:
    /// @p loadNextPic starts the large-picture pass, a second after this pass has ended.
    ThumbPass(const ServiceContext &context, PassState &state, ConnectionQueue &queue,
              PictureData &data, std::function<void()> loadNextPic);

    /// One step of the pass: handles the next cell that does not show the day.
    void loadNextThumb(const Then &then = {});

    /// Starts the pass at the first cell, @p seconds from now.
    void restart(double seconds);

    /// Starts it in the same way, but by the program's own account: it may have to wait.
    void restartUnasked(double seconds);

    /// Makes up for a pass that had to wait. Returns false when none had.
    bool catchUp();

    /// Lets the next pass through whenever the last one was.
    void forgetLastDataCheck() { m_state.lastDataCheck.reset(); }

    /// The user wants the data of a cell anew: drops its record, empties it, and asks the service.
    void refreshDataForThumb(ThumbView &cell, const ServiceUrls &urls);

    /// Empties every cell.
    void clearThumbs() const;

private:
    bool isTooEarly() const;
    bool hasToWait();
    QString rolledOverDay();
    void endPass();
    void emptyCell(ThumbView &cell) const;

    const ServiceContext &m_context;
    PassState &m_state;
    ConnectionQueue &m_queue;
    PictureData &m_data;
    std::function<void()> m_loadNextPic;
};

} // namespace moravel
