// SPDX-License-Identifier: MIT
#include "server/sources/net/FeedDay.h"

#include "server/sources/net/Choice.h"

namespace moravel::server {

tl::expected<FeedDay, Outcome> feedDay(Asking &asking, const QUrl &address, QDate date)
{
    constexpr int reuseSeconds = 300; // The same answer holds the other days.
    const auto answer = asking.get(address, reuseSeconds);
    if (!answer)
        return tl::unexpected(isMissing(answer.error())
                                  ? Outcome(SourceDown{QStringLiteral("its feed is not there")})
                                  : answer.error());
    auto feed = parseFeed(answer->body, answer->url);
    if (!feed)
        return tl::unexpected(Outcome(SourceDown{QStringLiteral("its answer is no feed")}));
    if (const FeedItem *item = itemOn(*feed, date)) {
        FeedItem found = *item;
        return FeedDay{std::move(*feed), std::move(found)};
    }
    const QDate newest = newestDay(*feed);
    if (newest.isValid() && date > newest && mayComeYet(date, asking.now()))
        return tl::unexpected(Outcome(NotYetPublished{}));
    return tl::unexpected(Outcome(NothingThatDay{}));
}

Outcome feedPicture(Asking &asking, const FeedDay &day, const std::vector<QUrl> &wanted,
                    const QString &credit)
{
    const auto best = firstPicture(asking, wanted);
    if (!best)
        return NotAPicture{QStringLiteral("something without a picture")};
    const QString address = best->url.toString(QUrl::FullyEncoded);
    const QString page = day.item.link.scheme().startsWith(u"http")
        ? day.item.link.toString(QUrl::FullyEncoded)
        : address;
    return Picture{page,    day.item.title,   day.item.text,        credit, address, address,
                   address, best->facts.size, best->facts.megabytes};
}

} // namespace moravel::server
