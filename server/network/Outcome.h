// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/PictureSource.h"

#include <QDateTime>

#include <optional>
#include <variant>

namespace moravel::server {

/// A day's picture as its source tells of it. Texts are plain; addresses are absolute http or https.
struct Picture
{
    QString page;
    QString caption;
    QString info;
    QString credit; ///< Who made it, and under which licence.
    QString thumb;
    QString normal;
    QString full;
    QSize fullSize; ///< Pixels; empty when unknown.
    double fullMegabytes = 0; ///< 0 when unknown.
};

struct NotAPicture
{
    QString what; ///< "a video"
};

struct NothingThatDay
{
    QString note; ///< A sentence that says more, or empty.
};

struct NotYetPublished
{ };

struct RateLimited
{
    QDateTime until;
};

struct SourceDown
{
    QString why; ///< "it answered with status 500"
    bool thatDayOnly = false; ///< Only the picture is out of reach; the source can tell of others.
};

struct Retired
{
    QString note; ///< A sentence that says more, or empty.
};

/// What a source says of a day.
using Outcome = std::variant<Picture, NotAPicture, NothingThatDay, NotYetPublished, RateLimited,
                             SourceDown, Retired>;

/// One word for each kind, for the store and the counts.
const char *kindName(const Outcome &outcome);

/// Why there is no picture, in a sentence; for all outcomes but Picture.
Unavailable whyNot(const Outcome &outcome, const QString &source, const QDateTime &now);

/// The outcome with its texts cut to what is ever shown, and only addresses on the web; a picture
/// without one is none.
Outcome checked(Outcome outcome);

/// The outcome as text for the store, and back; none when the text is damaged.
QByteArray toJson(const Outcome &outcome);
std::optional<Outcome> outcomeFrom(const QByteArray &json);

/// When the source may be asked again about that day; invalid when its answer is final.
/// @p failures counts how often it was down in a row, this time included; @p chance from 0 to 1
/// spreads the askers.
QDateTime expiryOf(const Outcome &outcome, const QDateTime &now, int failures, double chance);

} // namespace moravel::server
