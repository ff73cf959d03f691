// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"
#include "server/sources/net/Choice.h"
#include "server/sources/net/FeedDay.h"

#include <QRegularExpression>

namespace moravel::server {

namespace {

/// The feed links the small picture, "…_th.jpg"; the large one lies beside it.
std::vector<QUrl> largeBefore(const std::vector<QUrl> &pictures)
{
    constexpr std::size_t mostTried = 4;
    static const QRegularExpression small(QStringLiteral("_th(?=\\.\\w{3,4}\\z)"));
    std::vector<QUrl> wanted;
    for (const QUrl &picture : pictures) {
        if (wanted.size() >= mostTried)
            break;
        QString path = picture.path();
        path.replace(small, QStringLiteral("_lrg"));
        QUrl large = picture;
        large.setPath(path);
        wanted.push_back(large);
        if (large != picture)
            wanted.push_back(picture);
    }
    return wanted;
}

class EarthObservatory : public Adapter
{
public:
    explicit EarthObservatory(const AdapterSetup &setup)
        : m_address(setup.address.isEmpty()
                        ? QUrl(QStringLiteral("https://earthobservatory.nasa.gov"))
                        : setup.address)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        const auto day =
            feedDay(asking, below(m_address, QStringLiteral("/feeds/image-of-the-day.rss")), date);
        if (!day)
            return day.error();
        const bool owned = day->item.text.contains(u'©')
            || day->item.text.contains(QLatin1StringView("copyright"), Qt::CaseInsensitive);
        Outcome outcome = feedPicture(
            asking, *day, largeBefore(day->item.pictures),
            owned ? QStringLiteral("NASA Earth Observatory; a copyright is shown in the text.")
                  : QStringLiteral("NASA Earth Observatory, free to reuse with this credit."));
        // Next to the large picture there is the one that the feed itself links.
        if (auto *picture = std::get_if<Picture>(&outcome); picture && !day->item.pictures.empty())
            picture->thumb = day->item.pictures.front().toString(QUrl::FullyEncoded);
        return outcome;
    }

private:
    const QUrl m_address;
};

} // namespace

std::unique_ptr<Adapter> makeEarthObservatory(const AdapterSetup &setup)
{
    return std::make_unique<EarthObservatory>(setup);
}

} // namespace moravel::server
