// SPDX-License-Identifier: MIT
#pragma once

#include "service/ConnectionQueue.h"
#include "service/Downloads.h"
#include "service/PassState.h"

namespace moravel {

/// After the thumbnails: downloads the missing large pictures of the cells that are shown, one cell a
/// step. A finished download makes a step of its own, so that every cell gets its turn.
class PicturePass
{
public:
    PicturePass(const ServiceContext &context, PassState &state, ConnectionQueue &queue);

    void loadNextPic();

    /// Goes on where the pass had to wait.
    void catchUp();

    Downloads &downloads() { return m_downloads; }

private:
    void downloadFinished();
    bool isWanted(const ThumbView &cell) const;
    void stop();
    void logShownCells() const;

    const ServiceContext &m_context;
    PassState &m_state;
    ConnectionQueue &m_queue;
    Downloads m_downloads;
};

} // namespace moravel
