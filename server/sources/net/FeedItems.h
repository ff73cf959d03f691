// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUrl>

#include <optional>
#include <vector>

namespace moravel::server {

struct FeedItem
{
    QString title; ///< Plain.
    QString text; ///< Plain.
    QString html; ///< The content as it came.
    QString author;
    QUrl link;
    QDateTime published; ///< In its own time zone.
    std::vector<QUrl> pictures; ///< Announced ones from large to small, then those in the content.
};

struct Feed
{
    QString title;
    QString rights;
    std::vector<FeedItem> items;
};

/// Reads RSS 2.0 (also with Media RSS) and Atom; none when the text is neither. @p base completes
/// relative links.
std::optional<Feed> parseFeed(const QByteArray &xml, const QUrl &base);

/// The item of a day, by the date that it bears; null when there is none.
const FeedItem *itemOn(const Feed &feed, QDate date);

/// The newest day of which the feed tells; invalid when it is empty.
QDate newestDay(const Feed &feed);

} // namespace moravel::server
