// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Messages.h"

#include <QDate>
#include <QSize>
#include <QString>

#include <functional>
#include <tl/expected.hpp>

namespace moravel::server {

/// Why a source has no picture to give.
enum class Reason {
    NoSuchSource,
    OutOfRange, ///< A day before the first or after the last that can be asked for.
    NotAPicture, ///< There is something that day, but no picture.
    NothingThatDay,
    NotYetPublished,
    RateLimited,
    SourceDown,
    Retired,
    Busy, ///< Too much to do here; asking again soon helps.
};

struct Unavailable
{
    Reason reason = Reason::NothingThatDay;
    QString message; ///< One sentence for people.
    int retryAfter = 0; ///< Seconds after which asking again makes sense; 0 when unknown.
};

class Lane;

/// Addresses elsewhere that clients may use as they are; empty where this service has one itself.
struct LinksElsewhere
{
    QString page;
    QString thumb;
    QString normal;
    QString full;
};

/// What is known of a day's picture without making it. Texts are plain, one line each.
struct DayPicture
{
    QString caption;
    QString info;
    QString credit;
    QSize fullSize; ///< Pixels.
    double fullMegabytes =
        0; ///< Size of the full-size file in millions of bytes, real or estimated.
    QString fullSuffix; ///< End of the full-size file's name, for example "3840x2160.jpg".
    bool isFinal = true; ///< The bytes of this day never change.
    LinksElsewhere elsewhere = {};
};

enum class PictureKind { Thumb, Normal, Full };

/// Sizes of the pictures that are made here, in pixels; Full only where there is no original.
constexpr QSize sizeOf(PictureKind kind)
{
    switch (kind) {
    case PictureKind::Thumb:
        return {400, 225};
    case PictureKind::Normal:
        return {1920, 1080};
    case PictureKind::Full:
        break;
    }
    return {3840, 2160};
}

/// A source of one picture a day. All functions may be called from several threads at once.
class PictureSource
{
public:
    virtual ~PictureSource() = default;

    virtual QString shortName() const = 0; ///< Identifier in requests: ASCII letters, at most 32.
    virtual QString longName() const = 0; ///< Display name.

    using Told = std::function<void(const tl::expected<DayPicture, Unavailable> &)>;

    /// Tells of the picture of @p date. Sources that may have to wait override ask().
    virtual tl::expected<DayPicture, Unavailable> describe(QDate date) const = 0;

    /// Calls @p told with what describe() says, at once or later, on any thread. With @p refresh
    /// what is known already is asked for anew, where that makes sense.
    virtual void ask(QDate date, bool refresh, const Told &told) const
    {
        static_cast<void>(refresh);
        told(describe(date));
    }

    /// Gives the picture itself, or where it lies; may take seconds.
    virtual tl::expected<Content, Unavailable> picture(QDate date, PictureKind kind) const = 0;

    /// Where its pictures are made, when not together with those of the others.
    virtual Lane *lane() const { return nullptr; }
};

} // namespace moravel::server
