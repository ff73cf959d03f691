// SPDX-License-Identifier: MIT
#include "server/core/ComputedPictures.h"

#include "server/core/Jpeg.h"
#include "server/core/Version.h"

namespace moravel::server {

namespace {

/// The size is told before the picture is made, and must be the same each time it is asked for:
/// clients choose by it which picture to fetch. Real ones take from a twentieth to a quarter of a
/// byte a pixel.
double estimatedMegabytes(QSize size)
{
    constexpr double bytesPerPixel = 0.2;
    return size.width() * size.height() * bytesPerPixel / 1e6;
}

} // namespace

ComputedPictures::ComputedPictures(std::unique_ptr<ComputedSource> source, RenderCache &cache)
    : m_source(std::move(source)), m_cache(cache)
{ }

tl::expected<DayPicture, Unavailable> ComputedPictures::describe(QDate date) const
{
    const DayText text = textOf(date);
    const QSize size = sizeOf(PictureKind::Full);
    return DayPicture{text.caption,
                      text.info,
                      m_source->credit(),
                      size,
                      estimatedMegabytes(size),
                      QStringLiteral("3840x2160.jpg")};
}

DayText ComputedPictures::textOf(QDate date) const
{
    const QByteArray key = QByteArray::number(date.toJulianDay());
    if (auto known = m_texts.find(key))
        return *std::move(known);
    DayText text = m_source->text(date);
    const qsizetype characters = text.caption.size() + text.info.size();
    m_texts.put(key, text, characters * qsizetype(sizeof(QChar)));
    return text;
}

tl::expected<Content, Unavailable> ComputedPictures::picture(QDate date, PictureKind kind) const
{
    return m_cache.picture(cacheName(shortName(), date, kind, versionText()),
                           [&] { return encodedJpeg(m_source->render(date, sizeOf(kind)), kind); });
}

} // namespace moravel::server
