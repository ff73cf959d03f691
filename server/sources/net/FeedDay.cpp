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
    const auto best = firstPicture(asking, wanted, QStringLiteral("something without a picture"));
    if (!best)
        return best.error();
    Picture picture;
    picture.page = day.item.link.toString(QUrl::FullyEncoded);
    picture.caption = day.item.title;
    picture.info = day.item.text;
    picture.credit = credit;
    return withLinks(picture, best->url, *best);
}

} // namespace moravel::server
