// SPDX-License-Identifier: MIT
#include "server/core/Service.h"

#include "server/core/Answers.h"
#include "server/core/CacheFolder.h"
#include "server/core/Days.h"
#include "server/core/Form.h"
#include "server/core/Lane.h"
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
                                    const DayPicture &day, const QString &siteName)
{
    if (option == u"all")
        return allAnswer(links, day, siteName);
    if (option == u"parent")
        return links.page(day) + u'\n';
    if (option == u"thumb")
        return links.thumb(day) + u'\n';
    if (option == u"captionPlusText")
        return captionAnswer(links, day, siteName);
    return std::nullopt;
}

Unavailable busy()
{
    return {Reason::Busy, QStringLiteral("The service has too much to do just now."), 5};
}

/// Runs @p work on @p lane, or at once without one; where the lane is full, says so.
void runOn(Lane *lane, const Answer &answer, std::function<void()> work)
{
    if (!lane)
        return work();
    if (!lane->post(std::move(work)))
        answer(unavailableResponse(busy()));
}

/// All that makes one answer differ from another.
QByteArray keyOf(const Request &request)
{
    return request.method + ' ' + request.target + '\n' + request.body + '\n' + request.host;
}

qint64 steadyMs()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

} // namespace

Service::Service(const SourceList &sources, Setup setup)
    : m_sources(sources), m_setup(std::move(setup)), m_kept(qsizetype(5) << 20)
{ }

void Service::handle(const Request &request, const Answer &answer) const
{
    if (answerKept(request, answer))
        return;
    runOn(m_setup.texts, answer, [this, request, answer] {
        compose(request, [this, answer](Response response) {
            if (m_setup.metrics)
                m_setup.metrics->add("requests_total{status=\""
                                     + QByteArray::number(response.status) + "\"}");
            answer(std::move(response));
        });
    });
}

bool Service::answerKept(const Request &request, const Answer &answer) const
{
    if (!request.target.startsWith("/potd/defs/moravel.irev"))
        return false;
    const auto kept = m_kept.find(keyOf(request));
    if (!kept || kept->untilMs < steadyMs() || kept->generation != m_generation)
        return false;
    ++m_keptAnswers;
    answer(plainTextResponse(kept->text));
    return true;
}

void Service::compose(const Request &request, const Answer &answer) const
{
    const qsizetype mark = request.target.indexOf('?');
    const auto path = percentDecoded(mark < 0 ? request.target : request.target.left(mark));
    if (!path)
        return answer(badRequest("The address is malformed."));
    const QByteArray query = mark < 0 ? QByteArray() : request.target.mid(mark + 1);
    try {
        return route(request, *path, query, answer);
    } catch (const std::exception &e) {
        qCInfo(serverLog) << "a request failed:" << e.what();
    } catch (...) {
        qCInfo(serverLog) << "a request failed";
    }
    answer(textResponse(500, QStringLiteral("The service failed to answer this.\n")));
}

void Service::route(const Request &request, const QString &path, const QByteArray &query,
                    const Answer &answer) const
{
    const bool picture = path.startsWith(picturesPath);
    const bool page = path.startsWith(pagesPath);
    const bool home = path == u"/" || path == u"/potd" || path == u"/potd/";
    const bool operators = path == u"/health" || path == u"/metrics";
    const bool known = picture || page || home || operators || path == dayPath
        || path == u"/potd/release.html" || path == u"/potd/defs/getSources.irev"
        || path == u"/potd/defs/getNews.irev";
    if (!known)
        return answer(notFound());
    if (auto error = methodError(request, path))
        return answer(*std::move(error));
    if (picture)
        return answerPicture(request, path.mid(picturesPath.size()), answer);
    if (page)
        return answerPage(path.mid(pagesPath.size()), answer);
    if (path == dayPath)
        return answerDay(request, request.method == "POST" ? request.body : query, answer);
    if (home)
        return answer(pageResponse(homePage(m_sources, now().date())));
    if (operators)
        return answer(answerOperator(request, path));
    if (path.endsWith(u".html"))
        return answer(pageResponse(releasePage()));
    if (path.endsWith(QLatin1StringView("getNews.irev")))
        return answer(answerNews());
    answer(textResponse(200, sourcesAnswer(m_sources)));
}

/// Only for people on this machine: a request that a proxy passed on comes from somewhere else.
Response Service::answerOperator(const Request &request, const QString &path) const
{
    if (!request.fromLoopback || request.forwarded)
        return textResponse(403, QStringLiteral("This is for this machine only.\n"));
    if (path == u"/health")
        return textResponse(200, QStringLiteral("ok\n"));
    const QByteArray kept = "# TYPE moravel_kept_answers_total counter\nmoravel_kept_answers_total "
        + QByteArray::number(m_keptAnswers.load()) + '\n';
    return plainTextResponse(m_setup.metrics ? kept + m_setup.metrics->text() : kept);
}

void Service::answerDay(const Request &request, const QByteArray &form, const Answer &answer) const
{
    const auto fields = parseForm(form);
    if (!fields)
        return answer(badRequest("The request's fields are malformed."));
    for (const char *name : {"option", "source", "date"}) {
        if (fields->value(QString::fromLatin1(name)).isEmpty())
            return answer(textResponse(
                400, QStringLiteral("The field %1 is missing.\n").arg(QLatin1StringView(name))));
    }
    const QString option = fields->value(QStringLiteral("option"));
    const auto date = parseDay(fields->value(QStringLiteral("date")));
    if (!date)
        return answer(badRequest("The date is not of the form month/day/year, as in 7/4/2011."));
    const QString name = fields->value(QStringLiteral("source"));
    const DayLinks links(baseUrl(request), name, *date);
    if (!optionAnswer(option, links, {}, {}))
        return answer(badRequest("The option is unknown."));
    const bool refresh = fields->value(QStringLiteral("refresh")) == u"true";
    const PictureSource *source = m_sources.find(name);
    const int generation = m_generation; // Of now: a refresh may overtake this answer.
    describe(source, *date, refresh, [=, this](const auto &day) {
        if (refresh)
            ++m_generation;
        // The other options' answers are taken for links and captions, where only emptiness means
        // "none".
        if (!day)
            return answer(
                textResponse(200, option == u"all" ? errorAnswer(day.error()) : QString()));
        const QByteArray text = optionAnswer(option, links, *day, source->longName())->toUtf8();
        constexpr qint64 keptForMs = 60'000;
        if (day->isFinal && !refresh)
            m_kept.put(keyOf(request), {text, steadyMs() + keptForMs, generation}, text.size());
        answer(plainTextResponse(text));
    });
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

void Service::answerPicture(const Request &request, const QString &name, const Answer &answer) const
{
    const auto parts = parsePictureName(name);
    const PictureSource *source = parts ? m_sources.findSlug(parts->slug) : nullptr;
    if (!source)
        return answer(notFound());
    const QDate date = parts->date;
    describe(source, date, false, [=, this, suffix = parts->suffix](const auto &day) {
        if (!day)
            return answer(unavailableResponse(day.error()));
        const auto kind = kindOf(suffix, *day);
        if (!kind)
            return answer(notFound());
        Lane *own = source->lane();
        runOn(own ? own : m_setup.pictures, answer, [=, isFinal = day->isFinal] {
            auto content = source->picture(date, *kind);
            answer(content ? pictureResponse(request, *std::move(content), isFinal)
                           : unavailableResponse(content.error()));
        });
    });
}

void Service::answerPage(const QString &name, const Answer &answer) const
{
    const auto parts = parsePictureName(name);
    const PictureSource *source = parts ? m_sources.findSlug(parts->slug) : nullptr;
    if (!source || parts->suffix != pageSuffix)
        return answer(notFound());
    const QDate date = parts->date;
    describe(source, date, false, [=, this](const auto &day) {
        answer(day ? pageResponse(dayPage(*source, date, *day, latestDay(now())))
                   : unavailableResponse(day.error()));
    });
}

void Service::describe(const PictureSource *source, QDate date, bool refresh,
                       const PictureSource::Told &told) const
{
    const auto refuse = [&](Reason reason, const char *why) {
        told(tl::unexpected(Unavailable{reason, QString::fromLatin1(why)}));
    };
    if (!source)
        return refuse(Reason::NoSuchSource, "There is no source of this name.");
    if (date < earliestDay())
        return refuse(Reason::OutOfRange, "There are no pictures before 1900.");
    if (date > latestDay(now()))
        return refuse(Reason::OutOfRange, "That day has not come yet.");
    const auto ask = [=] { source->ask(date, refresh, told); };
    Lane *own = m_sources.threadOf(source);
    if (!own)
        ask();
    else if (!own->post(ask))
        told(tl::unexpected(busy()));
}

QString Service::baseUrl(const Request &request) const
{
    if (!m_setup.publicUrl.isEmpty())
        return m_setup.publicUrl;
    const QByteArray host = isPlainHost(request.host) ? request.host : m_setup.boundHost;
    return QLatin1StringView("http://") + QString::fromLatin1(host) + QLatin1StringView("/potd");
}

QDateTime Service::now() const
{
    return m_setup.now ? m_setup.now() : QDateTime::currentDateTimeUtc();
}

} // namespace moravel::server
