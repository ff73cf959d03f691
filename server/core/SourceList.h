// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/PictureSource.h"

#include <memory>
#include <vector>

namespace moravel::server {

/// The sources of this service, in the order in which they are listed.
class SourceList
{
public:
    /// Adds a source; false, without adding, when its short name is unusable or (in any case)
    /// taken.
    bool add(std::unique_ptr<PictureSource> source);

    const PictureSource *
    find(const QString &shortName) const; ///< By exact name; null when unknown.
    const PictureSource *
    findSlug(const QString &slug) const; ///< By lower-case name; null when unknown.

    const std::vector<std::unique_ptr<PictureSource>> &all() const { return m_sources; }

private:
    std::vector<std::unique_ptr<PictureSource>> m_sources;
};

/// Whether @p name is 1 to 32 ASCII letters.
bool isShortName(const QString &name);

} // namespace moravel::server
