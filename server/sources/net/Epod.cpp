// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"
#include "server/sources/net/Choice.h"
#include "server/sources/net/FeedDay.h"
#include "server/sources/net/Html.h"

#include <QRegularExpression>

namespace moravel::server {

namespace {

/// The page's layout has changed before: what it says of itself for others comes first, then every
/// picture in it.
std::vector<QUrl> picturesOn(const QString &page, const QUrl &address)
{
    constexpr std::size_t mostTried = 6;
    std::vector<QUrl> pictures;
    if (const QString own = metaContent(page, QStringLiteral("og:image")); !own.isEmpty())
        pictures.push_back(address.resolved(QUrl(own)));
    const auto inside = imagesIn(page, address);
    pictures.insert(pictures.end(), inside.begin(), inside.end());
    if (pictures.size() > mostTried)
        pictures.resize(mostTried);
    return pictures;
}

/// "Photographer: Jane Doe" on the page.
QString photographerOn(const QString &page)
{
    static const QRegularExpression form(
        QStringLiteral("Photographers?(?:</?\\w[^>]{0,200}>|\\s|&nbsp;)*:(.{1,500}?)"
                       "(?:<br|</p|</div|</li|Summary|\\n)"),
        QRegularExpression::DotMatchesEverythingOption | QRegularExpression::CaseInsensitiveOption);
    constexpr qsizetype longest = 200'000;
    return plainText(form.match(page.left(longest)).captured(1));
}

class Epod : public Adapter
{
public:
    explicit Epod(const AdapterSetup &setup)
        : m_address(setup.address.isEmpty() ? QUrl(QStringLiteral("https://epod.usra.edu"))
                                            : setup.address)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        const auto day = feedDay(asking, below(m_address, QStringLiteral("/blog/atom.xml")), date);
        if (!day)
            return day.error();
        const auto answer = asking.get(day->item.link);
        if (!answer)
            return answer.error();
        const QString page = QString::fromUtf8(answer->body);
        const QString photographer = photographerOn(page);
        const QString credit = photographer.isEmpty()
            ? QStringLiteral("Earth Science Picture of the Day; the photographer keeps the rights.")
            : QStringLiteral("© %1, Earth Science Picture of the Day.").arg(photographer);
        return feedPicture(asking, *day, picturesOn(page, answer->url), credit);
    }

private:
    const QUrl m_address;
};

} // namespace

std::unique_ptr<Adapter> makeEpod(const AdapterSetup &setup)
{
    return std::make_unique<Epod>(setup);
}

} // namespace moravel::server
