// SPDX-License-Identifier: MIT
#include "browser/ThumbnailQueue.h"

#include <QSet>

namespace moravel {

namespace {

// Beyond those that are being made: no thread waits for an idle main loop. While that is busy painting what
// scrolls, they do wait, and leave it a processor.
constexpr int Ahead = 2;

} // namespace

ThumbnailQueue::ThumbnailQueue(Thumbnails &thumbnails, qsizetype memory)
    : m_thumbnails(thumbnails), m_kept(memory)
{ }

void ThumbnailQueue::want(const QStringList &paths, QSize box)
{
    const QSet<QString> wanted(paths.begin(), paths.end());
    const bool sameBox = box == m_box;
    m_box = box;
    std::erase_if(m_running,
                  [&](const auto &call) { return !sameBox || !wanted.contains(call.first); });
    m_wanted.assign(paths.begin(), paths.end());
    startSome();
}

const Thumbnail *ThumbnailQueue::thumbnail(const QString &path) const
{
    const Kept *kept = m_kept.object(path);
    return kept ? &kept->thumbnail : nullptr;
}

void ThumbnailQueue::clear()
{
    m_running.clear();
    m_wanted.clear();
    m_kept.clear();
}

/// A picture of another box is only good enough until its own has come.
bool ThumbnailQueue::isKnown(const QString &path) const
{
    const Kept *kept = m_kept.object(path);
    return kept && (kept->box == m_box || kept->thumbnail.image.isNull());
}

void ThumbnailQueue::startSome()
{
    const auto most = static_cast<std::size_t>(m_thumbnails.atOnce() + Ahead);
    while (m_running.size() < most && !m_wanted.empty()) {
        const QString path = m_wanted.front();
        m_wanted.pop_front();
        if (isKnown(path) || m_running.contains(path))
            continue;
        m_running[path] =
            m_thumbnails.load(path, m_box, [this, path, box = m_box](const Thumbnail &thumbnail) {
                keep(path, box, thumbnail);
            });
    }
}

void ThumbnailQueue::keep(const QString &path, QSize box, const Thumbnail &thumbnail)
{
    const auto answered = m_running.extract(path); // ends when this is over
    constexpr qsizetype Overhead = 256;
    m_kept.insert(path, new Kept{thumbnail, box}, thumbnail.image.sizeInBytes() + Overhead);
    Q_EMIT arrived(path);
    startSome();
}

} // namespace moravel
