// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"
#include "server/sources/net/Choice.h"
#include "server/sources/net/Html.h"
#include "server/sources/net/Json.h"

namespace moravel::server {

namespace {

const QString dayForm = QStringLiteral("yyyyMMdd");

class Bing : public Adapter
{
public:
    explicit Bing(const AdapterSetup &setup)
        : m_address(setup.address.isEmpty() ? QUrl(QStringLiteral("https://www.bing.com"))
                                            : setup.address)
        , m_market(setup.market.isEmpty() ? QStringLiteral("en-US") : setup.market)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        constexpr int reuseSeconds = 300; // The same answer holds the other days.
        QDate newest;
        for (const int index : {0, 7}) {
            const auto json =
                asking.json(below(m_address,
                                  QStringLiteral("/HPImageArchive.aspx?format=js&idx=%1&n=8&mkt=%2")
                                      .arg(QString::number(index), m_market)),
                            reuseSeconds);
            if (!json)
                return json.error();
            for (const auto &image : valueAt(*json, {"images"})) {
                const QDate day = QDate::fromString(textAt(image, {"startdate"}), dayForm);
                if (day == date)
                    return outcomeOfImage(image, asking);
                if (!newest.isValid() || day > newest)
                    newest = day;
            }
            if (!newest.isValid() || date > newest)
                break;
        }
        if (newest.isValid() && date > newest && mayComeYet(date, asking.now()))
            return NotYetPublished{};
        return NothingThatDay{QStringLiteral("It keeps about a week.")};
    }

private:
    Outcome outcomeOfImage(const nlohmann::json &image, Asking &asking) const
    {
        const auto &allowed = valueAt(image, {"wp"});
        if (allowed.is_boolean() && !allowed.get<bool>())
            return NotAPicture{QStringLiteral("one that must not be used as wallpaper")};
        const QString base = textAt(image, {"urlbase"});
        if (!base.startsWith(u'/'))
            return SourceDown{QStringLiteral("it tells of a picture without its address")};
        // Other sizes carry a watermark.
        const QUrl normal = below(m_address, base + QLatin1StringView("_1920x1080.jpg"));
        const auto best =
            firstPicture(asking, {below(m_address, base + QLatin1StringView("_UHD.jpg")), normal},
                         QStringLiteral("something that is not a picture file"));
        if (!best)
            return best.error();
        // "Harbour at dusk (© Somebody/Agency)"
        const QString words = plainText(textAt(image, {"copyright"}));
        const qsizetype owner = words.lastIndexOf(QStringLiteral("(©"));
        const QString text = (owner < 0 ? words : words.left(owner)).trimmed();
        const QString title = plainText(textAt(image, {"title"}));
        QString page = below(m_address, {})
                           .resolved(QUrl(textAt(image, {"copyrightlink"})))
                           .toString(QUrl::FullyEncoded);
        if (!page.startsWith(u"http"))
            page = m_address.toString();
        Picture picture;
        picture.page = page;
        picture.caption = title.isEmpty() || title == u"Info" ? text : title;
        picture.info = text;
        picture.credit = (owner < 0 ? words : words.mid(owner + 1).remove(u')'))
            + QStringLiteral(". Bing; for use as wallpaper only.");
        return withLinks(picture, normal, *best);
    }

    const QUrl m_address;
    const QString m_market;
};

} // namespace

std::unique_ptr<Adapter> makeBing(const AdapterSetup &setup)
{
    return std::make_unique<Bing>(setup);
}

} // namespace moravel::server
