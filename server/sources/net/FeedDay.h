// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/Asking.h"
#include "server/sources/net/FeedItems.h"

namespace moravel::server {

/// A feed as it is now, and the item of a day in it.
struct FeedDay
{
    Feed feed;
    FeedItem item;
};

/// Fetches a feed and finds the item of a day; else what its absence says.
tl::expected<FeedDay, Outcome> feedDay(Asking &asking, const QUrl &address, QDate date);

/// The item as a picture, the first of @p wanted that is one; @p credit ends its text.
Outcome feedPicture(Asking &asking, const FeedDay &day, const std::vector<QUrl> &wanted,
                    const QString &credit);

} // namespace moravel::server
