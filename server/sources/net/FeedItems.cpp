// SPDX-License-Identifier: MIT
#include "server/sources/net/FeedItems.h"

#include "server/sources/net/Html.h"

#include <algorithm>
#include <pugixml.hpp>
#include <string_view>

namespace moravel::server {

namespace {

QString textOf(const pugi::xml_node &node)
{
    return QString::fromUtf8(node.text().get()).trimmed();
}

/// The first child that has one of the names and a text.
QString childText(const pugi::xml_node &item, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        if (QString text = textOf(item.child(name)); !text.isEmpty())
            return text;
    }
    return {};
}

QString attribute(const pugi::xml_node &node, const char *name)
{
    return QString::fromUtf8(node.attribute(name).value()).trimmed();
}

QDateTime momentOf(const QString &text)
{
    QDateTime moment = QDateTime::fromString(text, Qt::RFC2822Date);
    if (!moment.isValid()) {
        // "Wed, 02 Oct 2002 13:00:00 GMT": zones by name are not read.
        QString numeric = text;
        for (const char *zone : {" GMT", " UTC", " UT", " Z"}) {
            if (numeric.endsWith(QLatin1StringView(zone)))
                numeric = numeric.left(numeric.lastIndexOf(u' ')) + QLatin1StringView(" +0000");
        }
        moment = QDateTime::fromString(numeric, Qt::RFC2822Date);
    }
    if (!moment.isValid())
        moment = QDateTime::fromString(text, Qt::ISODate);
    if (!moment.isValid()) // "Mon, 01 Jan 2024 00:00:00 EST": the day will do.
        moment =
            QDateTime(QLocale::c().toDate(text.section(u' ', 1, 3), QStringLiteral("dd MMM yyyy")),
                      QTime(0, 0));
    return moment;
}

struct Announced
{
    QUrl url;
    double size = 0;
};

void announce(const pugi::xml_node &node, const char *urlName, const QUrl &base,
              std::vector<Announced> &list)
{
    const QString type = attribute(node, "type");
    const QString medium = attribute(node, "medium");
    const QUrl url = base.resolved(QUrl(attribute(node, urlName)));
    const bool other = (!type.isEmpty() && !type.startsWith(u"image/"))
        || (!medium.isEmpty() && medium != u"image");
    if (!attribute(node, urlName).isEmpty() && !other)
        list.push_back({url, attribute(node, "width").toDouble()});
}

std::vector<QUrl> picturesOf(const pugi::xml_node &item, const QString &html, const QUrl &base)
{
    std::vector<Announced> list;
    for (const auto &node : item.children("enclosure"))
        announce(node, "url", base, list);
    for (const auto &node : item.children("link")) {
        if (attribute(node, "rel") == u"enclosure")
            announce(node, "href", base, list);
    }
    for (const auto &node : item.children("media:content"))
        announce(node, "url", base, list);
    for (const auto &node : item.child("media:group").children("media:content"))
        announce(node, "url", base, list);
    std::stable_sort(list.begin(), list.end(),
                     [](const Announced &a, const Announced &b) { return a.size > b.size; });
    std::vector<QUrl> urls;
    for (const Announced &announced : list)
        urls.push_back(announced.url);
    const auto inside = imagesIn(html, base);
    urls.insert(urls.end(), inside.begin(), inside.end());
    return urls;
}

QUrl linkOf(const pugi::xml_node &item, const QUrl &base)
{
    for (const auto &node : item.children("link")) {
        const QString relation = attribute(node, "rel");
        const QString address = node.attribute("href") ? attribute(node, "href") : textOf(node);
        if (!address.isEmpty() && (relation.isEmpty() || relation == u"alternate"))
            return base.resolved(QUrl(address));
    }
    return {};
}

FeedItem itemOf(const pugi::xml_node &node, const QUrl &base)
{
    FeedItem item;
    item.html = childText(
        node, {"content:encoded", "content", "description", "summary", "media:description"});
    item.title = plainText(childText(node, {"title", "media:title"}));
    item.text = plainText(childText(
        node, {"description", "summary", "media:description", "content:encoded", "content"}));
    item.author = plainText(childText(node, {"media:credit", "dc:creator", "author"}));
    if (item.author.isEmpty())
        item.author = plainText(childText(node.child("author"), {"name"}));
    item.link = linkOf(node, base);
    item.published = momentOf(childText(node, {"pubDate", "published", "dc:date", "updated"}));
    item.pictures = picturesOf(node, item.html, base);
    return item;
}

} // namespace

std::optional<Feed> parseFeed(const QByteArray &xml, const QUrl &base)
{
    constexpr std::size_t most = 500;
    pugi::xml_document document;
    // A feed that breaks off still has the items before that.
    document.load_buffer(xml.constData(), static_cast<std::size_t>(xml.size()),
                         pugi::parse_default | pugi::parse_trim_pcdata);
    const pugi::xml_node root = document.document_element();
    const bool atom = std::string_view(root.name()) == "feed";
    const pugi::xml_node channel = atom ? root : root.child("channel");
    if (!channel)
        return std::nullopt;
    Feed feed;
    feed.title = plainText(childText(channel, {"title"}));
    feed.rights = plainText(childText(channel, {"copyright", "rights", "dc:rights"}));
    const bool outside = std::string_view(root.name()) == "rdf:RDF";
    for (const auto &node : (outside ? root : channel).children(atom ? "entry" : "item")) {
        if (feed.items.size() < most)
            feed.items.push_back(itemOf(node, base));
    }
    return feed;
}

const FeedItem *itemOn(const Feed &feed, QDate date)
{
    const auto at = std::find_if(feed.items.begin(), feed.items.end(), [&](const FeedItem &item) {
        return item.published.isValid() && item.published.date() == date;
    });
    return at == feed.items.end() ? nullptr : &*at;
}

QDate newestDay(const Feed &feed)
{
    QDate newest;
    for (const FeedItem &item : feed.items) {
        if (item.published.isValid() && (!newest.isValid() || item.published.date() > newest))
            newest = item.published.date();
    }
    return newest;
}

} // namespace moravel::server
