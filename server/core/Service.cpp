// SPDX-License-Identifier: MIT
#include "server/core/Service.h"

#include "server/core/Answers.h"
#include "server/core/CacheFolder.h"
#include "server/core/Days.h"
#include "server/core/Form.h"
#include "server/core/Log.h"
#include "server/core/Pages.h"
#include "server/core/PictureNames.h"
#include "server/core/Responses.h"
#include "server/core/Text.h"

namespace moravel::server {

namespace {

constexpr QLatin1StringView picturesPath("/potd/pictures/");
constexpr QLatin1StringView pagesPath("/potd/pages/");
constexpr QLatin1StringView dayPath("/potd/defs/moravel.irev");

Response notFound()
{
    return textResponse(404, QStringLiteral("There is nothing here.\n"));
}

Response badRequest(const char *what)
{
    return textResponse(400, QString::fromLatin1(what) + u'\n');
}

std::optional<PictureKind> kindOf(const QString &suffix, const DayPicture &day)
{
    if (suffix == thumbSuffix)
        return PictureKind::Thumb;
    if (suffix == normalSuffix)
        return PictureKind::Normal;
    if (suffix == day.fullSuffix)
        return PictureKind::Full;
    return std::nullopt;
}

std::optional<Response> methodError(const Request &request, const QString &path)
{
    const bool reads = request.method == "GET" || request.method == "HEAD";
    const bool postable = path == dayPath;
    if (reads || (postable && request.method == "POST"))
        return std::nullopt;
    Response response = textResponse(405, QStringLiteral("This method is not for this address.\n"));
    response.headers.emplace_back("Allow", postable ? "GET, HEAD, POST" : "GET, HEAD");
    return response;
}

/// The answer to one option for a day that has a picture.
std::optional<QString> optionAnswer(const QString &option, const DayLinks &links,
                                    const DayPicture &day)
{
    if (option == u"all")
        return allAnswer(links, day);
    if (option == u"parent")
        return links.page() + u'\n';
    if (option == u"thumb")
        return links.picture(thumbSuffix) + u'\n';
    if (option == u"captionPlusText")
        return captionAnswer(day);
    return std::nullopt;
}

} // namespace

Service::Service(const SourceList &sources, Setup setup)
    : m_sources(sources), m_setup(std::move(setup))
{ }

Response Service::handle(const Request &request) const
{
    const qsizetype mark = request.target.indexOf('?');
    const auto path = percentDecoded(mark < 0 ? request.target : request.target.left(mark));
    if (!path)
        return badRequest("The address is malformed.");
    const QByteArray query = mark < 0 ? QByteArray() : request.target.mid(mark + 1);
    try {
        return route(request, *path, query);
    } catch (const std::exception &e) {
        qCInfo(serverLog) << "a request failed:" << e.what();
    } catch (...) {
        qCInfo(serverLog) << "a request failed";
    }
    return textResponse(500, QStringLiteral("The service failed to answer this.\n"));
}

Response Service::route(const Request &request, const QString &path, const QByteArray &query) const
{
    const bool picture = path.startsWith(picturesPath);
    const bool page = path.startsWith(pagesPath);
    const bool home = path == u"/" || path == u"/potd" || path == u"/potd/";
    const bool known = picture || page || home || path == dayPath || path == u"/potd/release.html"
        || path == u"/potd/defs/getSources.irev" || path == u"/potd/defs/getNews.irev";
    if (!known)
        return notFound();
    if (auto error = methodError(request, path))
        return *std::move(error);
    if (picture)
        return answerPicture(request, path.mid(picturesPath.size()));
    if (page)
        return answerPage(path.mid(pagesPath.size()));
    if (home)
        return pageResponse(homePage(m_sources, now().date()));
    if (path == dayPath)
        return answerDay(request, request.method == "POST" ? request.body : query);
    if (path.endsWith(u".html"))
        return pageResponse(releasePage());
    if (path.endsWith(QLatin1StringView("getNews.irev")))
        return answerNews();
    return textResponse(200, sourcesAnswer(m_sources));
}

Response Service::answerDay(const Request &request, const QByteArray &form) const
{
    const auto fields = parseForm(form);
    if (!fields)
        return badRequest("The request's fields are malformed.");
    for (const char *name : {"option", "source", "date"}) {
        if (fields->value(QString::fromLatin1(name)).isEmpty())
            return textResponse(
                400, QStringLiteral("The field %1 is missing.\n").arg(QLatin1StringView(name)));
    }
    const QString option = fields->value(QStringLiteral("option"));
    const auto date = parseDay(fields->value(QStringLiteral("date")));
    if (!date)
        return badRequest("The date is not of the form month/day/year, as in 7/4/2011.");
    const QString name = fields->value(QStringLiteral("source"));
    const DayLinks links(baseUrl(request), name, *date);
    if (!optionAnswer(option, links, {}))
        return badRequest("The option is unknown.");
    const auto day = describe(m_sources.find(name), *date);
    if (day)
        return textResponse(200, *optionAnswer(option, links, *day));
    // The other options' answers are taken for links and captions, where only emptiness means
    // "none".
    return textResponse(200, option == u"all" ? errorAnswer(day.error()) : QString());
}

Response Service::answerNews() const
{
    constexpr qint64 longest = 65'536;
    if (m_setup.newsFile.isEmpty())
        return textResponse(200, {});
    const auto file = openPlainFile(m_setup.newsFile);
    if (!file || file->size() > longest)
        return textResponse(200, {});
    return textResponse(200, QString::fromUtf8(file->read(longest)).trimmed());
}

Response Service::answerPicture(const Request &request, const QString &name) const
{
    const auto parts = parsePictureName(name);
    const PictureSource *source = parts ? m_sources.findSlug(parts->slug) : nullptr;
    if (!source)
        return notFound();
    const auto day = describe(source, parts->date);
    if (!day)
        return unavailableResponse(day.error());
    const auto kind = kindOf(parts->suffix, *day);
    if (!kind)
        return notFound();
    auto content = source->picture(parts->date, *kind);
    if (!content)
        return unavailableResponse(content.error());
    return pictureResponse(request, *std::move(content), day->isFinal);
}

Response Service::answerPage(const QString &name) const
{
    const auto parts = parsePictureName(name);
    const PictureSource *source = parts ? m_sources.findSlug(parts->slug) : nullptr;
    if (!source || parts->suffix != pageSuffix)
        return notFound();
    const auto day = describe(source, parts->date);
    return day ? pageResponse(dayPage(*source, parts->date, *day, latestDay(now())))
               : unavailableResponse(day.error());
}

tl::expected<DayPicture, Unavailable> Service::describe(const PictureSource *source,
                                                        QDate date) const
{
    if (!source)
        return tl::unexpected(
            Unavailable{Reason::NoSuchSource, QStringLiteral("There is no source of this name.")});
    if (date < earliestDay())
        return tl::unexpected(
            Unavailable{Reason::OutOfRange, QStringLiteral("There are no pictures before 1900.")});
    if (date > latestDay(now()))
        return tl::unexpected(
            Unavailable{Reason::OutOfRange, QStringLiteral("That day has not come yet.")});
    return source->describe(date);
}

QString Service::baseUrl(const Request &request) const
{
    const QByteArray host = isPlainHost(request.host) ? request.host : m_setup.boundHost;
    return QLatin1StringView("http://") + QString::fromLatin1(host) + QLatin1StringView("/potd");
}

QDateTime Service::now() const
{
    return m_setup.now ? m_setup.now() : QDateTime::currentDateTimeUtc();
}

} // namespace moravel::server
