// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Recent.h"
#include "server/core/RenderCache.h"
#include "server/sources/ComputedSource.h"

namespace moravel::server {

/// Serves a computed source through the cache.
class ComputedPictures : public PictureSource
{
public:
    /// @p cache must outlive this object.
    ComputedPictures(std::unique_ptr<ComputedSource> source, RenderCache &cache);

    QString shortName() const override { return m_source->shortName(); }

    QString longName() const override { return m_source->longName(); }

    tl::expected<DayPicture, Unavailable> describe(QDate date) const override;
    tl::expected<Content, Unavailable> picture(QDate date, PictureKind kind) const override;

private:
    DayText textOf(QDate date) const;

    const std::unique_ptr<ComputedSource> m_source;
    RenderCache &m_cache;
    /// Finding a fractal worth showing takes 20 ms; this much holds the texts of some three years.
    mutable Recent<DayText> m_texts{qsizetype(1) << 20};
};

} // namespace moravel::server
