// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"
#include "server/sources/net/Choice.h"
#include "server/sources/net/Html.h"
#include "server/sources/net/Json.h"

#include <QUrlQuery>

namespace moravel::server {

namespace {

const QDate firstDay(1995, 6, 16);

class Apod : public Adapter
{
public:
    explicit Apod(const AdapterSetup &setup)
        : m_address(setup.address.isEmpty() ? QUrl(QStringLiteral("https://api.nasa.gov"))
                                            : setup.address)
        , m_key(setup.key)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        if (date < firstDay)
            return NothingThatDay{QStringLiteral("It began on June 16, 1995.")};
        if (m_key.isEmpty())
            return SourceDown{QStringLiteral("it wants a key, and none is configured")};
        const auto json = asking.json(addressOf(date));
        if (!json)
            return early(json.error(), date, asking);
        if (textAt(*json, {"date"}) != date.toString(Qt::ISODate))
            return early(NothingThatDay{}, date, asking);
        if (textAt(*json, {"media_type"}) != u"image")
            return NotAPicture{textAt(*json, {"media_type"}) == u"video"
                                   ? QStringLiteral("a video")
                                   : QStringLiteral("something else")};
        return picture(*json, date, asking);
    }

private:
    QUrl addressOf(QDate date) const
    {
        QUrl url = below(m_address, QStringLiteral("/planetary/apod"));
        QUrlQuery query;
        query.addQueryItem(QStringLiteral("api_key"), m_key);
        query.addQueryItem(QStringLiteral("date"), date.toString(Qt::ISODate));
        query.addQueryItem(QStringLiteral("thumbs"), QStringLiteral("true"));
        url.setQuery(query);
        return url;
    }

    /// Around midnight it refuses the day that is about to begin in several ways.
    static Outcome early(const Outcome &outcome, QDate date, const Asking &asking)
    {
        const bool limited = std::holds_alternative<RateLimited>(outcome);
        const auto *down = std::get_if<SourceDown>(&outcome);
        const bool answered = isMissing(outcome)
            || (down && (down->why.endsWith(u"500") || down->why.endsWith(u"400")));
        return !limited && answered && mayComeYet(date, asking.now()) ? Outcome(NotYetPublished{})
                                                                      : outcome;
    }

    static Outcome picture(const nlohmann::json &json, QDate date, Asking &asking)
    {
        const QUrl page = QUrl(QStringLiteral("https://apod.nasa.gov/apod/ap%1.html")
                                   .arg(date.toString(QStringLiteral("yyMMdd"))));
        const QUrl normal = page.resolved(QUrl(textAt(json, {"url"})));
        std::vector<QUrl> wanted{normal};
        if (const QString large = textAt(json, {"hdurl"}); !large.isEmpty())
            wanted.insert(wanted.begin(), page.resolved(QUrl(large)));
        const auto best =
            firstPicture(asking, wanted, QStringLiteral("something that is not a picture file"));
        if (!best)
            return best.error();
        const QString owner = plainText(textAt(json, {"copyright"}));
        const QString credit = owner.isEmpty() ? QStringLiteral("NASA, public domain.")
                                               : QStringLiteral("© %1.").arg(owner);
        Picture picture;
        picture.page = page.toString();
        picture.caption = plainText(textAt(json, {"title"}));
        picture.info = plainText(textAt(json, {"explanation"}));
        picture.credit = QStringLiteral("Astronomy Picture of the Day: ") + credit;
        return withLinks(picture, normal, *best);
    }

    const QUrl m_address;
    const QString m_key;
};

} // namespace

std::unique_ptr<Adapter> makeApod(const AdapterSetup &setup)
{
    return std::make_unique<Apod>(setup);
}

} // namespace moravel::server
