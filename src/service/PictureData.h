// SPDX-License-Identifier: MIT
#pragma once

#include "service/ConnectionQueue.h"
#include "service/ServiceContext.h"
#include "service/ServiceUrls.h"

namespace moravel {

/// Gets the data of one picture, from the record file or from the service, and shows it in its cell.
/// When the service has nothing for a day, the days before are tried, at most a week back.
class PictureData
{
public:
    /// Shows the thumbnail of the cell of a source and lets the pass go on.
    using DisplayThumb = std::function<void(const QString &shortSource, const Then &then)>;

    PictureData(const ServiceContext &context, ServiceUrls urls, ConnectionQueue &queue);

    /// Must be set before anything is shown.
    void setDisplayThumb(DisplayThumb display) { m_displayThumbForSource = std::move(display); }

    /// Shows the stored record of a source and Short date, or queues a request for it.
    void getDataForSource(const QString &name, const QString &onDate, const Then &then);

    /// Takes the answer for the queue's processThumb.
    void processThumbData(const QString &answer, const Then &then);

    /// Shows the seven fields of a record in a cell.
    void displayThumbData(const QStringList &fields, ThumbView &inThumb, const Then &then);

private:
    QStringList record(const QStringList &lines, const ThumbView &cell,
                       const QString &localDate) const;
    void tryDayBefore(ThumbView &cell, const QString &localDate, const Then &then);

    const ServiceContext &m_context;
    ServiceUrls m_urls;
    ConnectionQueue &m_queue;
    DisplayThumb m_displayThumbForSource;
};

/// Name under which processThumbData() is entered in the queue.
inline const QString ProcessThumbData = QStringLiteral("processThumbData:");

} // namespace moravel
