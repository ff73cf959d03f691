// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Thumbnails.h"

#include <QCache>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <map>

namespace moravel {

/// The thumbnails that are on screen or near it: asks for them in the order of their use, gives up those that
/// are scrolled away, and remembers as many as fit into its memory. While somebody scrolls, it leaves a processor
/// to whoever paints.
class ThumbnailQueue : public QObject
{
    Q_OBJECT

public:
    /// Bytes of pictures that are remembered.
    static constexpr qsizetype Memory = 48 << 20;

    explicit ThumbnailQueue(Thumbnails &thumbnails, qsizetype memory = Memory);

    /// Says what is wanted, the most urgent first, fitting @p box in pixels; replaces what was wanted before.
    void want(const QStringList &paths, QSize box);

    /// Returns what is remembered of a file, be it of another box; null when nothing is. Touches no disk.
    const Thumbnail *thumbnail(const QString &path) const;

    /// Forgets everything, so that changed files are looked at again.
    void clear();

Q_SIGNALS:
    void arrived(const QString &path);

private:
    struct Kept
    {
        Thumbnail thumbnail;
        QSize box;
    };

    bool isKnown(const QString &path) const;
    bool isScrolling() const;
    void startSome();
    void keep(const QString &path, QSize box, const Thumbnail &thumbnail);

    Thumbnails &m_thumbnails;
    QCache<QString, Kept> m_kept; ///< Cost in bytes.
    std::deque<QString> m_wanted;
    QString m_first; ///< Of those last wanted.
    QSize m_box;
    int m_steps = 0; ///< To other pictures, each soon after the one before.
    QTimer m_rest;
    std::map<QString, ThumbnailCallHandle> m_running;
};

} // namespace moravel
