// SPDX-License-Identifier: MIT
#pragma once

#include "service/ConnectionQueue.h"
#include "service/HeldFetch.h"
#include "service/ServiceContext.h"

namespace moravel {

/// Shows the thumbnail of a cell, fetching its file first when it is missing.
class ThumbDisplay
{
public:
    /// Pixels of the box that thumbnails are decoded into: twice the picture area of a cell.
    static constexpr QSize ThumbBox{416, 320};

    /// @p loadNextThumb lets the pass go on after a cell was shown.
    ThumbDisplay(const ServiceContext &context, ConnectionQueue &queue, const HeldFetch &fetch,
                 std::function<void(const Then &)> loadNextThumb);

    void displayThumbForSource(const QString &name, const Then &then);

private:
    struct Job;
    void fetch(const Job &job);
    void keep(const Job &job, const QByteArray &bytes, const Then &then);
    void load(const Job &job);
    void loadLargePic(const Job &job);
    void show(const Job &job, const QImage &image);

    const ServiceContext &m_context;
    ConnectionQueue &m_queue;
    const HeldFetch &m_fetch;
    std::function<void(const Then &)> m_loadNextThumb;
};

} // namespace moravel
