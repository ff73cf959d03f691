// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Config.h"
#include "server/core/Recent.h"
#include "server/core/RenderCache.h"
#include "server/sources/folder/EmbeddedText.h"
#include "server/sources/folder/FolderListing.h"

namespace moravel::server {

/// Shows the pictures of a folder, one a day in the order of their names, over and over. The full
/// size is the file itself; smaller ones are fitted into their size.
class FolderSource : public PictureSource
{
public:
    /// @p cache must outlive this object.
    FolderSource(FolderSetup setup, RenderCache &cache);

    QString shortName() const override { return m_setup.shortName; }

    QString longName() const override { return m_setup.longName; }

    tl::expected<DayPicture, Unavailable> describe(QDate date) const override;
    tl::expected<Content, Unavailable> picture(QDate date, PictureKind kind) const override;

private:
    struct Facts
    {
        QString revision;
        QSize size;
        EmbeddedText text;
    };

    struct Day
    {
        QString name;
        std::shared_ptr<QFile> file; ///< Open.
    };

    tl::expected<Day, Unavailable> openOn(QDate date) const;
    tl::expected<Facts, Unavailable> factsOf(const QString &name, QFile &file) const;

    const FolderSetup m_setup;
    RenderCache &m_cache;
    mutable FolderListing m_listing;
    mutable Recent<Facts> m_facts{qsizetype(1) << 20}; ///< By file name.
};

} // namespace moravel::server
