// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/RenderCache.h"
#include "server/network/AnswerBook.h"

#include <memory>

namespace moravel::server {

/// Sizes in pixels that proxied pictures are fitted into.
struct PictureSizes
{
    QSize thumb = sizeOf(PictureKind::Thumb);
    QSize normal = sizeOf(PictureKind::Normal);
    QSize full = sizeOf(PictureKind::Full);
};

/// What the operator says of a network source.
struct RemoteSetup
{
    QString shortName;
    QString longName;
    bool mayBePrivate = false; ///< It lies in this machine or its network.
    bool proxy = false; ///< Its pictures go through this service.
    PictureSizes sizes;
};

/// Serves a network source: what its adapter finds out, kept in its book.
class RemoteSource : public PictureSource
{
public:
    /// @p book's parts and @p folder must outlive this object.
    RemoteSource(RemoteSetup setup, std::unique_ptr<Adapter> adapter, const BookSetup &book,
                 std::shared_ptr<CacheFolder> folder);
    ~RemoteSource() override;

    QString shortName() const override { return m_setup.shortName; }

    QString longName() const override { return m_setup.longName; }

    /// Waits as long as ask() takes.
    tl::expected<DayPicture, Unavailable> describe(QDate date) const override;
    void ask(QDate date, bool refresh, const Told &told) const override;
    tl::expected<Content, Unavailable> picture(QDate date, PictureKind kind) const override;

    Lane *lane() const override { return m_setup.proxy ? &m_pictureLane : nullptr; }

    void stop(); ///< Sends all who wait away.

private:
    DayPicture dayOf(const Picture &picture) const;
    Outcome outcomeOn(QDate date) const;
    QByteArray fetchedAndFitted(const QUrl &url, PictureKind kind) const;
    QSize boxFor(PictureKind kind) const;

    const RemoteSetup m_setup;
    const std::unique_ptr<Adapter> m_adapter;
    const BookSetup m_bookSetup;
    mutable AnswerBook m_book;
    mutable RenderCache m_cache;
    mutable Lane m_pictureLane;
};

} // namespace moravel::server
