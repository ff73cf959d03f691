// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Lane.h"
#include "server/core/PictureSource.h"

#include <map>
#include <memory>
#include <vector>

namespace moravel::server {

/// The sources of this service, in the order in which they are listed.
class SourceList
{
public:
    /// Adds a source; false, without adding, when its short name is unusable or (in any case)
    /// taken. One that blocks while it tells of a day gets a thread of its own, so that the others
    /// do not wait for it.
    bool add(std::unique_ptr<PictureSource> source, bool blocks = false);

    const PictureSource *
    find(const QString &shortName) const; ///< By exact name; null when unknown.
    const PictureSource *
    findSlug(const QString &slug) const; ///< By lower-case name; null when unknown.

    Lane *threadOf(const PictureSource *source) const; ///< Where it is to be asked; null: anywhere.

    const std::vector<std::unique_ptr<PictureSource>> &all() const { return m_sources; }

private:
    std::vector<std::unique_ptr<PictureSource>> m_sources;
    std::map<const PictureSource *, std::unique_ptr<Lane>> m_threads; ///< End before the sources.
};

/// Whether @p name is 1 to 32 ASCII letters.
bool isShortName(const QString &name);

} // namespace moravel::server
