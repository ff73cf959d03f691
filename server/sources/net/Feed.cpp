// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"
#include "server/sources/net/FeedDay.h"

namespace moravel::server {

namespace {

class FeedSource : public Adapter
{
public:
    explicit FeedSource(const AdapterSetup &setup)
        : m_address(setup.address), m_credit(setup.credit)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        constexpr std::size_t mostTried = 5;
        const auto day = feedDay(asking, m_address, date);
        if (!day)
            return day.error();
        auto wanted = day->item.pictures;
        if (wanted.size() > mostTried)
            wanted.resize(mostTried);
        QStringList credit{day->item.author, m_credit, day->feed.rights};
        credit.removeAll(QString());
        credit.removeDuplicates();
        if (credit.isEmpty())
            credit = {day->feed.title};
        return feedPicture(asking, *day, wanted, credit.join(QLatin1StringView(", ")) + u'.');
    }

private:
    const QUrl m_address;
    const QString m_credit;
};

} // namespace

std::unique_ptr<Adapter> makeFeed(const AdapterSetup &setup)
{
    return std::make_unique<FeedSource>(setup);
}

} // namespace moravel::server
