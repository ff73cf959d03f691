// SPDX-License-Identifier: MIT
#include "server/network/Outcome.h"

#include "server/core/Links.h"
#include "server/core/Text.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace moravel::server {

namespace {

using Json = nlohmann::json;

template <typename... F>
struct Overloaded : F...
{
    using F::operator()...;
};

template <typename... F>
Overloaded(F...) -> Overloaded<F...>;

constexpr std::array<const char *, 7> kinds{"picture",      "not_a_picture", "nothing", "not_yet",
                                            "rate_limited", "down",          "retired"};

QString textIn(const Json &json, const char *key)
{
    return QString::fromStdString(json.value(key, std::string()));
}

Picture pictureIn(const Json &json)
{
    return {textIn(json, "page"),        textIn(json, "caption"),
            textIn(json, "info"),        textIn(json, "credit"),
            textIn(json, "thumb"),       textIn(json, "normal"),
            textIn(json, "full"),        {json.value("width", 0), json.value("height", 0)},
            json.value("megabytes", 0.0)};
}

Json jsonOf(const Picture &picture)
{
    const auto text = [](const QString &value) { return value.toStdString(); };
    return {{"page", text(picture.page)},          {"caption", text(picture.caption)},
            {"info", text(picture.info)},          {"credit", text(picture.credit)},
            {"thumb", text(picture.thumb)},        {"normal", text(picture.normal)},
            {"full", text(picture.full)},          {"width", picture.fullSize.width()},
            {"height", picture.fullSize.height()}, {"megabytes", picture.fullMegabytes}};
}

int secondsUntil(const QDateTime &then, const QDateTime &now)
{
    constexpr qint64 most = 86'400;
    return static_cast<int>(std::clamp<qint64>(now.secsTo(then), 1, most));
}

} // namespace

const char *kindName(const Outcome &outcome)
{
    return kinds.at(outcome.index());
}

Unavailable whyNot(const Outcome &outcome, const QString &source, const QDateTime &now)
{
    const auto say = [&](Reason reason, const QString &text, int retryAfter = 0) {
        return Unavailable{reason, text.arg(source), retryAfter};
    };
    return std::visit(
        Overloaded{
            [&](const Picture &) { return say(Reason::Busy, QStringLiteral("%1 has a picture.")); },
            [&](const NotAPicture &it) {
                return say(
                    Reason::NotAPicture,
                    QStringLiteral("%2 has no picture that day, but %1.").arg(it.what, u"%1"));
            },
            [&](const NothingThatDay &it) {
                return say(Reason::NothingThatDay,
                           QStringLiteral("%1 has nothing for that day. ") + it.note);
            },
            [&](const NotYetPublished &) {
                return say(Reason::NotYetPublished,
                           QStringLiteral("%1 has not published that day's picture yet."));
            },
            [&](const RateLimited &it) {
                return say(
                    Reason::RateLimited,
                    QStringLiteral("%1 may be asked again after ")
                        + it.until.toUTC().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss 'UTC.'")),
                    secondsUntil(it.until, now));
            },
            [&](const SourceDown &it) {
                return say(Reason::SourceDown,
                           QStringLiteral("%2 cannot be reached: %1.").arg(it.why, u"%1"), 60);
            },
            [&](const Retired &it) {
                return say(Reason::Retired,
                           QStringLiteral("%1 publishes no pictures any more. ") + it.note);
            }},
        outcome);
}

Outcome checked(Outcome outcome)
{
    constexpr qsizetype longestText = 4000;
    constexpr qsizetype longestLine = 300;
    auto *picture = std::get_if<Picture>(&outcome);
    if (!picture)
        return outcome;
    picture->info = oneLine(picture->info, longestText);
    for (QString *text : {&picture->caption, &picture->credit})
        *text = oneLine(*text, longestLine);
    for (QString *link : {&picture->page, &picture->thumb, &picture->normal, &picture->full})
        *link = webAddress(QUrl(*link));
    if (picture->normal.isEmpty())
        picture->normal = picture->full;
    if (picture->normal.isEmpty())
        return NotAPicture{QStringLiteral("something else")};
    for (QString *link : {&picture->page, &picture->thumb, &picture->full}) {
        if (link->isEmpty())
            *link = picture->normal;
    }
    return outcome;
}

QByteArray toJson(const Outcome &outcome)
{
    const auto text = [](const QString &value) { return value.toStdString(); };
    Json json = std::visit(Overloaded{[&](const Picture &it) { return jsonOf(it); },
                                      [&](const NotAPicture &it) {
                                          return Json{{"note", text(it.what)}};
                                      },
                                      [&](const NothingThatDay &it) {
                                          return Json{{"note", text(it.note)}};
                                      },
                                      [&](const NotYetPublished &) { return Json::object(); },
                                      [&](const RateLimited &it) {
                                          return Json{{"until", it.until.toSecsSinceEpoch()}};
                                      },
                                      [&](const SourceDown &it) {
                                          return Json{{"note", text(it.why)}};
                                      },
                                      [&](const Retired &it) {
                                          return Json{{"note", text(it.note)}};
                                      }},
                           outcome);
    json["kind"] = kindName(outcome);
    return QByteArray::fromStdString(json.dump(-1, ' ', false, Json::error_handler_t::replace));
}

std::optional<Outcome> outcomeFrom(const QByteArray &bytes)
{
    const Json json = Json::parse(bytes.begin(), bytes.end(), nullptr, false);
    if (!json.is_object())
        return std::nullopt;
    try {
        const std::string kind = json.value("kind", std::string());
        const QString note = textIn(json, "note");
        const auto index = std::find(kinds.begin(), kinds.end(), kind) - kinds.begin();
        switch (index) {
        case 0:
            return pictureIn(json);
        case 1:
            return NotAPicture{note};
        case 2:
            return NothingThatDay{note};
        case 3:
            return NotYetPublished{};
        case 4:
            return RateLimited{
                QDateTime::fromSecsSinceEpoch(json.value("until", qint64(0)), Qt::UTC)};
        case 5:
            return SourceDown{note};
        case 6:
            return Retired{note};
        default:
            return std::nullopt;
        }
    } catch (const Json::exception &) {
        return std::nullopt;
    }
}

QDateTime expiryOf(const Outcome &outcome, const QDateTime &now, int failures, double chance)
{
    constexpr qint64 minute = 60;
    constexpr qint64 day = 86'400;
    constexpr qint64 longestBackOff = 3600;
    const auto after = [&](qint64 seconds) {
        // From half the time to the whole.
        return now.addMSecs(static_cast<qint64>(static_cast<double>(seconds) * 500 * (1 + chance)));
    };
    return std::visit(
        Overloaded{[&](const Picture &) { return QDateTime(); },
                   [&](const NotAPicture &) { return after(day); },
                   // The day may not be over where the source is.
                   [&](const NothingThatDay &) { return after(day / 4); },
                   [&](const NotYetPublished &) { return after(10 * minute); },
                   [&](const RateLimited &it) { return std::max(it.until, now.addSecs(1)); },
                   [&](const SourceDown &it) {
                       if (it.thatDayOnly)
                           return after(10 * minute);
                       const int doublings = std::clamp(failures - 1, 0, 10);
                       return after(std::min(minute << doublings, longestBackOff));
                   },
                   [&](const Retired &) { return after(7 * day); }},
        outcome);
}

} // namespace moravel::server
