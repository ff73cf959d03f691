// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"
#include "server/sources/net/Choice.h"
#include "server/sources/net/Html.h"
#include "server/sources/net/Json.h"

#include <QRegularExpression>

#include <algorithm>

namespace moravel::server {

namespace {

/// About a fifth of all numbers stand for something with a free picture.
constexpr int mostTried = 16;
constexpr int highestNumber = 270'000;

class Artic : public Adapter
{
public:
    explicit Artic(const AdapterSetup &setup)
        : m_address(setup.address.isEmpty() ? QUrl(QStringLiteral("https://api.artic.edu"))
                                            : setup.address)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        for (int attempt = 0; attempt < mostTried; ++attempt) {
            const int number = chosenNumber("Artic", date, attempt, highestNumber);
            const auto json = asking.json(
                below(m_address,
                      QStringLiteral("/api/v1/artworks/%1?fields=id,title,artist_display,"
                                     "date_display,medium_display,credit_line,image_id,"
                                     "is_public_domain,thumbnail,short_description")
                          .arg(number)),
                0, {"AIC-User-Agent: moravel-service"});
            if (!json && !isMissing(json.error()))
                return json.error();
            static const QRegularExpression plainId(QStringLiteral("\\A[0-9a-fA-F-]{8,64}\\z"));
            if (!json || !plainId.match(textAt(*json, {"data", "image_id"})).hasMatch())
                continue;
            const auto &free = valueAt(*json, {"data", "is_public_domain"});
            if (free.is_boolean() && free.get<bool>())
                return pictureOf(*json, number);
        }
        return NothingThatDay{QStringLiteral("None of the day's numbers has a free picture.")};
    }

private:
    /// All pictures of this source are called default.jpg: they go out under names of our own.
    static Outcome pictureOf(const nlohmann::json &json, int number)
    {
        constexpr int largestWidth = 1686; // Its caches hold this one.
        QString server = textAt(json, {"config", "iiif_url"});
        if (!server.startsWith(u"http"))
            server = QStringLiteral("https://www.artic.edu/iiif/2");
        const auto &data = valueAt(json, {"data"});
        const auto text = [&](const char *key) { return plainText(textAt(data, {key})); };
        const auto link = [&](int width) {
            return QUrl(QStringLiteral("%1/%2/full/%3,/0/default.jpg")
                            .arg(server, textAt(data, {"image_id"}))
                            .arg(width))
                .toString(QUrl::FullyEncoded);
        };
        QStringList about{text("artist_display"), text("date_display"), text("medium_display"),
                          text("short_description")};
        if (about.last().isEmpty())
            about.last() = plainText(textAt(data, {"thumbnail", "alt_text"}));
        about.removeAll(QString());
        const QString from = text("credit_line");
        const QSize size(integerAt(data, {"thumbnail", "width"}),
                         integerAt(data, {"thumbnail", "height"}));
        // It does not enlarge.
        const int width = size.isEmpty() ? largestWidth : std::min(size.width(), largestWidth);
        return Picture{QStringLiteral("https://www.artic.edu/artworks/%1").arg(number),
                       text("title"),
                       about.join(QLatin1StringView(". ")),
                       QStringLiteral("Art Institute of Chicago, %1CC0; description CC BY 4.0.")
                           .arg(from.isEmpty() ? QString() : from + QLatin1StringView(", ")),
                       link(std::min(width, 400)),
                       link(width),
                       link(width),
                       size.isEmpty() ? QSize() : size.scaled(width, 1 << 20, Qt::KeepAspectRatio),
                       0};
    }

    const QUrl m_address;
};

} // namespace

std::unique_ptr<Adapter> makeArtic(const AdapterSetup &setup)
{
    return std::make_unique<Artic>(setup);
}

} // namespace moravel::server
