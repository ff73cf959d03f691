// SPDX-License-Identifier: MIT
#include "browser/ThumbnailQueue.h"

#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

namespace moravel {

namespace {

// Asked for beyond those that are being made, so that no thread waits for the main loop.
constexpr int Ahead = 2;

// A wheel, a finger or a drag of the scroll bar brings another row within a few frames of 16 ms.
constexpr int RestMs = 100;
constexpr int StepsOfScrolling = 3; ///< Fewer may be whole pages, which are wanted at full speed.

} // namespace

ThumbnailQueue::ThumbnailQueue(Thumbnails &thumbnails, qsizetype memory)
    : m_thumbnails(thumbnails), m_kept(memory)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(RestMs);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        m_steps = 0;
        startSome();
    });
}

void ThumbnailQueue::want(const QStringList &paths, QSize box)
{
    const QSet<QString> wanted(paths.begin(), paths.end());
    const bool sameBox = box == m_box;
    m_box = box;
    std::erase_if(m_running,
                  [&](const auto &call) { return !sameBox || !wanted.contains(call.first); });
    m_wanted.assign(paths.begin(), paths.end());
    if (const QString first = paths.value(0); first != std::exchange(m_first, first)) {
        ++m_steps;
        m_rest.start();
    }
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

bool ThumbnailQueue::isScrolling() const
{
    return m_steps >= StepsOfScrolling;
}

void ThumbnailQueue::startSome()
{
    const int most =
        isScrolling() ? std::max(1, m_thumbnails.atOnce() - 1) : m_thumbnails.atOnce() + Ahead;
    while (std::ssize(m_running) < most && !m_wanted.empty()) {
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
