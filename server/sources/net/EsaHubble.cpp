// SPDX-License-Identifier: MIT
#include "server/core/Links.h"
#include "server/sources/net/Adapters.h"
#include "server/sources/net/Choice.h"
#include "server/sources/net/Html.h"
#include "server/sources/net/Json.h"

#include <algorithm>

namespace moravel::server {

namespace {

constexpr qint64 mostPixels = 50'000'000; ///< Originals are gigantic.

struct Resource
{
    QString url;
    QSize size;
    double megabytes = 0;
};

/// All picture files of an item, from small to large.
std::vector<Resource> resourcesOf(const nlohmann::json &item)
{
    std::vector<Resource> resources;
    for (const auto &asset : valueAt(item, {"Assets"})) {
        for (const auto &resource : valueAt(asset, {"Resources"})) {
            const auto &size = valueAt(resource, {"Dimensions"});
            const bool sized = size.is_array() && size.size() == 2 && size[0].is_number_integer()
                && size[1].is_number_integer();
            const QString url = webAddress(QUrl(textAt(resource, {"URL"})));
            const QString kind = textAt(resource, {"MediaType"});
            const QString end = url.section(u'.', -1).toLower();
            const bool shown = end == u"jpg" || end == u"jpeg" || end == u"png";
            if (sized && shown && (kind.isEmpty() || kind == u"Image"))
                resources.push_back({url,
                                     {size[0].get<int>(), size[1].get<int>()},
                                     numberAt(resource, {"FileSize"}) / 1e6});
        }
    }
    std::stable_sort(resources.begin(), resources.end(),
                     [](const auto &a, const auto &b) { return a.size.width() < b.size.width(); });
    return resources;
}

/// The smallest that is at least so wide, else the largest.
const Resource &ofWidth(const std::vector<Resource> &resources, int width)
{
    const auto at = std::find_if(resources.begin(), resources.end(),
                                 [&](const auto &it) { return it.size.width() >= width; });
    return at == resources.end() ? resources.back() : *at;
}

class EsaHubble : public Adapter
{
public:
    explicit EsaHubble(const AdapterSetup &setup)
        : m_address(setup.address.isEmpty() ? QUrl(QStringLiteral("https://esahubble.org"))
                                            : setup.address)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        constexpr int mostPages = 5;
        constexpr int reuseSeconds = 3600; // Pictures come about once a week.
        for (int number = 1; number <= mostPages; ++number) {
            const auto json = asking.json(
                below(m_address, QStringLiteral("/images/d2d/?page=%1").arg(number)), reuseSeconds);
            if (!json)
                return number > 1 && isMissing(json.error()) ? Outcome(NothingThatDay{})
                                                             : json.error();
            const auto &items = json->is_array() ? *json : valueAt(*json, {"Collections"});
            QDate oldest = date;
            for (const auto &item : items) {
                const QDate day =
                    QDate::fromString(textAt(item, {"PublicationDate"}).left(10), Qt::ISODate);
                if (day == date)
                    return outcomeOfItem(item);
                if (day.isValid() && day < oldest)
                    oldest = day;
            }
            if (items.empty() || oldest < date)
                return mayComeYet(date, asking.now()) ? Outcome(NotYetPublished{})
                                                      : Outcome(NothingThatDay{});
        }
        return NothingThatDay{QStringLiteral("It is too long ago.")};
    }

private:
    static Outcome outcomeOfItem(const nlohmann::json &item)
    {
        constexpr int thumbWidth = 400;
        constexpr int normalWidth = 1920;
        const auto all = resourcesOf(item);
        std::vector<Resource> moderate;
        std::copy_if(all.begin(), all.end(), std::back_inserter(moderate), [](const auto &it) {
            return it.size.width() > 0 && it.size.height() > 0
                && qint64(it.size.width()) * it.size.height() <= mostPixels;
        });
        if (moderate.empty())
            return NotAPicture{QStringLiteral("something else")};
        const Resource &full = moderate.back();
        QString page = webAddress(QUrl(textAt(item, {"ReferenceURL"})));
        if (page.isEmpty())
            page = QStringLiteral("https://esahubble.org/images/%1/").arg(textAt(item, {"ID"}));
        QStringList credit{plainText(textAt(item, {"Credit"})),
                           plainText(textAt(item, {"Rights"}))};
        credit.removeAll(QString());
        return Picture{page,
                       plainText(textAt(item, {"Title"})),
                       plainText(textAt(item, {"Description"})),
                       credit.isEmpty() ? QStringLiteral("ESA/Hubble, CC BY 4.0.")
                                        : credit.join(QLatin1StringView(", ")) + u'.',
                       ofWidth(moderate, thumbWidth).url,
                       ofWidth(moderate, normalWidth).url,
                       full.url,
                       full.size,
                       full.megabytes};
    }

    const QUrl m_address;
};

} // namespace

std::unique_ptr<Adapter> makeEsaHubble(const AdapterSetup &setup)
{
    return std::make_unique<EsaHubble>(setup);
}

} // namespace moravel::server
