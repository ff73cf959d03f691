// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/ComputedPictures.h"
#include "server/core/Service.h"
#include "support/TempHome.h"

#include <atomic>

namespace moravel::server {

/// One plain colour a day; counts how often it is rendered.
class FakeComputed : public ComputedSource
{
public:
    explicit FakeComputed(std::atomic<int> &renders) : m_renders(renders) { }

    QString shortName() const override { return QStringLiteral("Fake"); }

    QString longName() const override { return QStringLiteral("Fake & co"); }

    QString credit() const override { return QStringLiteral("Made here."); }

    DayText text(QDate) const override
    {
        return {QStringLiteral("<b>Red</b> & round"), QStringLiteral("It is\n red.")};
    }

    QImage render(QDate, QSize size) const override
    {
        ++m_renders;
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    }

private:
    std::atomic<int> &m_renders;
};

/// A source that never has a picture, for a reason of choice.
class FakeUnavailable : public PictureSource
{
public:
    explicit FakeUnavailable(Unavailable why) : m_why(std::move(why)) { }

    QString shortName() const override { return QStringLiteral("Away"); }

    QString longName() const override { return QStringLiteral("Away"); }

    tl::expected<DayPicture, Unavailable> describe(QDate) const override
    {
        return tl::unexpected(m_why);
    }

    tl::expected<Content, Unavailable> picture(QDate, PictureKind) const override
    {
        return tl::unexpected(m_why);
    }

private:
    Unavailable m_why;
};

/// A service with the computed source above, on 1 May 2020, noon UTC.
struct FakeService
{
    testing::TempHome home;
    std::atomic<int> renders = 0;
    RenderCache cache{home.path(QStringLiteral("cache")), 1 << 24};
    SourceList sources;
    Service service{sources, {home.path(QStringLiteral("news.txt")), "127.0.0.1:1", [] {
                                  return QDateTime(QDate(2020, 5, 1), QTime(12, 0), Qt::UTC);
                              }}};

    FakeService()
    {
        sources.add(
            std::make_unique<ComputedPictures>(std::make_unique<FakeComputed>(renders), cache));
    }

    Response handle(const Request &request) const
    {
        Response response;
        service.handle(request, [&](Response answer) { response = std::move(answer); });
        return response;
    }

    Response get(const QByteArray &target, const QByteArray &host = "h:1") const
    {
        return handle({"GET", target, host, {}, {}, {}});
    }

    QByteArray day(const QByteArray &form) const
    {
        return get("/potd/defs/moravel.irev?" + form).content.bytes;
    }
};

} // namespace moravel::server
