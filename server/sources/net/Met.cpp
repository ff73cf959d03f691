// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"
#include "server/sources/net/Choice.h"
#include "server/sources/net/Html.h"
#include "server/sources/net/Json.h"

namespace moravel::server {

namespace {

/// About a quarter of all numbers stand for something with a free picture.
constexpr int mostTried = 16;
constexpr int highestNumber = 900'000;

class Met : public Adapter
{
public:
    explicit Met(const AdapterSetup &setup)
        : m_address(setup.address.isEmpty()
                        ? QUrl(QStringLiteral("https://collectionapi.metmuseum.org"))
                        : setup.address)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        for (int attempt = 0; attempt < mostTried; ++attempt) {
            const int number = chosenNumber("Met", date, attempt, highestNumber);
            const auto json = asking.json(
                below(m_address, QStringLiteral("/public/collection/v1/objects/%1").arg(number)));
            if (!json && !isMissing(json.error()))
                return json.error();
            if (!json)
                continue;
            const auto &free = valueAt(*json, {"isPublicDomain"});
            const QUrl picture(textAt(*json, {"primaryImage"}));
            if (!free.is_boolean() || !free.get<bool>() || picture.isEmpty())
                continue;
            const auto best = firstPicture(asking, {picture}, {});
            if (best)
                return pictureOf(*json, *best);
            if (!std::holds_alternative<NotAPicture>(best.error()))
                return best.error();
        }
        return NothingThatDay{QStringLiteral("None of the day's numbers has a free picture.")};
    }

private:
    static Outcome pictureOf(const nlohmann::json &json, const Choice &best)
    {
        const auto text = [&](const char *key) { return plainText(textAt(json, {key})); };
        QStringList about{text("artistDisplayName"), text("objectDate"), text("medium")};
        about.removeAll(QString());
        const QString title = text("title");
        QString page = textAt(json, {"objectURL"});
        if (!page.startsWith(u"http"))
            page = QStringLiteral("https://www.metmuseum.org/");
        const QString from = text("creditLine");
        Picture picture;
        picture.page = page;
        picture.caption = title.isEmpty() ? text("objectName") : title;
        picture.info = about.join(QLatin1StringView(", "));
        picture.credit = QStringLiteral("The Metropolitan Museum of Art, %1CC0.")
                             .arg(from.isEmpty() ? QString() : from + QLatin1StringView(", "));
        picture = withLinks(picture, best.url, best);
        picture.thumb = textAt(json, {"primaryImageSmall"}); // Too small for more.
        return picture;
    }

    const QUrl m_address;
};

} // namespace

std::unique_ptr<Adapter> makeMet(const AdapterSetup &setup)
{
    return std::make_unique<Met>(setup);
}

} // namespace moravel::server
