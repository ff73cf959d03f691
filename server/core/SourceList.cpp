// SPDX-License-Identifier: MIT
#include "server/core/SourceList.h"

#include <algorithm>

namespace moravel::server {

bool isShortName(const QString &name)
{
    constexpr qsizetype longest = 32;
    return !name.isEmpty() && name.size() <= longest
        && std::all_of(name.begin(), name.end(), [](QChar c) {
               return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
           });
}

bool SourceList::add(std::unique_ptr<PictureSource> source, bool blocks)
{
    constexpr std::size_t mostWaiting = 4096;
    const QString name = source->shortName();
    if (!isShortName(name) || findSlug(name.toLower()))
        return false;
    if (blocks)
        m_threads.emplace(source.get(), std::make_unique<Lane>(1, mostWaiting));
    m_sources.push_back(std::move(source));
    return true;
}

Lane *SourceList::threadOf(const PictureSource *source) const
{
    const auto at = m_threads.find(source);
    return at == m_threads.end() ? nullptr : at->second.get();
}

const PictureSource *SourceList::find(const QString &shortName) const
{
    const auto at = std::find_if(m_sources.begin(), m_sources.end(), [&](const auto &source) {
        return source->shortName() == shortName;
    });
    return at == m_sources.end() ? nullptr : at->get();
}

const PictureSource *SourceList::findSlug(const QString &slug) const
{
    const auto at = std::find_if(m_sources.begin(), m_sources.end(), [&](const auto &source) {
        return source->shortName().toLower() == slug;
    });
    return at == m_sources.end() ? nullptr : at->get();
}

} // namespace moravel::server
