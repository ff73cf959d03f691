// SPDX-License-Identifier: MIT
#include "server/sources/net/Adapters.h"
#include "server/sources/net/Choice.h"
#include "server/sources/net/Html.h"
#include "server/sources/net/Json.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace moravel::server {

namespace {

/// Other widths are answered with status 429.
constexpr std::array widths{3840, 1920, 1280, 960, 500, 330, 250, 120};
constexpr int thumbWidth = 500;
constexpr int askedWidth = 960;
constexpr int normalWidth = 1920;

class Commons : public Adapter
{
public:
    explicit Commons(const AdapterSetup &setup)
        : m_address(setup.address.isEmpty() ? QUrl(QStringLiteral("https://commons.wikimedia.org"))
                                            : setup.address)
    { }

    Outcome ask(QDate date, Asking &asking) const override
    {
        const QString title = QLatin1StringView("Template:Potd/") + date.toString(Qt::ISODate);
        const auto json = asking.json(below(
            m_address,
            QStringLiteral("/w/api.php?action=query&format=json&generator=images&titles=%1&prop="
                           "imageinfo&iiprop=url%7Csize%7Cmime%7Cextmetadata&iiurlwidth=%2")
                .arg(title)
                .arg(askedWidth)));
        if (!json)
            return json.error();
        const auto &pages = valueAt(*json, {"query", "pages"});
        for (const auto &page : pages) {
            const auto &infos = valueAt(page, {"imageinfo"});
            if (infos.is_array() && !infos.empty())
                return outcomeOfFile(page, infos.front(), title, asking);
        }
        if (mayComeYet(date, asking.now()))
            return NotYetPublished{};
        return NothingThatDay{};
    }

private:
    Outcome outcomeOfFile(const nlohmann::json &page, const nlohmann::json &info,
                          const QString &title, Asking &asking) const
    {
        const QString type = textAt(info, {"mime"});
        if (!type.startsWith(u"image/"))
            return NotAPicture{type.startsWith(u"video/") ? QStringLiteral("a video")
                                                          : QStringLiteral("a sound")};
        if (type != u"image/jpeg" && type != u"image/png" && type != u"image/tiff"
            && type != u"image/webp")
            return NotAPicture{QStringLiteral("a drawing or an animation")};
        Picture picture;
        picture.page = textAt(info, {"descriptionurl"});
        picture.info = plainText(textAt(info, {"extmetadata", "ImageDescription", "value"}));
        const auto caption = captionOf(title, asking);
        if (!caption)
            return caption.error();
        picture.caption = *caption;
        if (picture.caption.isEmpty())
            picture.caption = nameOf(textAt(page, {"title"}));
        if (picture.info.isEmpty())
            picture.info = picture.caption;
        picture.credit = creditOf(info);
        putLinks(picture, info, type);
        if (picture.thumb.isEmpty() || picture.page.isEmpty())
            return SourceDown{QStringLiteral("it tells of a picture without its address")};
        return picture;
    }

    /// The words that were written for the day; empty when there are none in English.
    tl::expected<QString, Outcome> captionOf(const QString &title, Asking &asking) const
    {
        const auto json = asking.json(
            below(m_address,
                  QStringLiteral("/w/api.php?action=parse&format=json&prop=text&page=%1%20(en)")
                      .arg(title)));
        if (!json && !isMissing(json.error()))
            return tl::unexpected(json.error());
        return json ? plainText(textAt(*json, {"parse", "text", "*"})) : QString();
    }

    /// "File:Harbour at dusk.jpg" without what belongs to the file.
    static QString nameOf(const QString &title)
    {
        const QString name = title.section(u':', 1);
        return name.left(name.lastIndexOf(u'.')).replace(u'_', u' ').trimmed();
    }

    static QString creditOf(const nlohmann::json &info)
    {
        const auto meta = [&](const char *key) {
            return plainText(textAt(info, {"extmetadata", key, "value"}));
        };
        QStringList parts{meta("Artist"), meta("Credit"), meta("LicenseShortName"),
                          meta("LicenseUrl")};
        parts.removeAll(QString());
        parts.removeDuplicates();
        return parts.isEmpty() ? QStringLiteral("Author and licence: see the page.")
                               : parts.join(QLatin1StringView(", ")) + u'.';
    }

    /// Originals may be gigantic, or of a kind that few programs show; reduced ones are JPEG or PNG.
    static void putLinks(Picture &picture, const nlohmann::json &info, const QString &type)
    {
        constexpr qint64 mostPixels = 50'000'000;
        const QString original = textAt(info, {"url"});
        const QSize size(integerAt(info, {"width"}), integerAt(info, {"height"}));
        const bool moderate = qint64(size.width()) * size.height() <= mostPixels;
        const bool shown = moderate && type != u"image/tiff";
        static const QRegularExpression widthPart(QStringLiteral("(?<=[/-])960px-"));
        const auto put = [&](QString &link, int most) {
            // Nothing is enlarged there.
            const auto width = std::find_if(widths.begin(), widths.end(), [&](int it) {
                return it <= most && it < size.width();
            });
            link = original;
            if ((shown && size.width() <= most) || width == widths.end())
                return size;
            link = textAt(info, {"thumburl"});
            link.replace(widthPart, QStringLiteral("%1px-").arg(*width));
            return size.scaled(*width, 1 << 20, Qt::KeepAspectRatio);
        };
        put(picture.thumb, thumbWidth);
        put(picture.normal, normalWidth);
        picture.fullSize = put(picture.full, shown ? size.width() : widths.front());
        if (picture.full == original)
            picture.fullMegabytes = numberAt(info, {"size"}) / 1e6;
    }

    const QUrl m_address;
};

} // namespace

std::unique_ptr<Adapter> makeCommons(const AdapterSetup &setup)
{
    return std::make_unique<Commons>(setup);
}

} // namespace moravel::server
