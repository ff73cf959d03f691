// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>

namespace moravel {

/// What a desktop needs copies for.
enum class CopyKind {
    Scaled, ///< It keeps decoded pictures: smaller ones.
    /// The same, and it reads a path only once, and none with a %, # or ?: those get at least a link with
    /// a plain name, and so does a picture that is handed over while it is shown.
    PlainNames,
    Cut, ///< It fills a screen only by stretching: copies in the shape of the first screen.
};

/// Screen-sized stand-ins for large pictures, for desktops that keep every picture they were given in
/// memory. Lives in a folder of its own, which holds the last two copies and a list that tells whose
/// copies they are; nothing else in the folder is touched. Main thread only; decoding and writing
/// happen in a thread.
class ScaledCopies
{
public:
    /// @p folder is made when the first copy is.
    explicit ScaledCopies(const QString &folder, CopyKind kind = CopyKind::Scaled);
    ~ScaledCopies();

    /// Finds the file to hand to the desktop for @p picture (a plain path): a copy, made if it is
    /// missing, or the picture itself when it is not much larger than what @p screens show, or cannot
    /// be read or copied. Calls @p done later, never from within, in the order of the calls.
    void prepare(const QString &picture, const QList<QSize> &screens, DesktopScaling scaling,
                 std::function<void(QString)> done, bool isShown = false);

    /// Returns the picture that @p path is a copy of; @p path itself when it is none of ours.
    QString original(const QString &path) const;

    /// Makes the copy @p path anew, under another name, if it is ours and its file is gone. Then calls
    /// @p done with the file to hand over, else never.
    void restore(const QString &path, std::function<void(QString)> done);

private:
    struct Entry
    {
        QString name; ///< File name of the copy.
        QString original; ///< Plain path of the user's picture.
        QList<QSize> screens;
        DesktopScaling scaling = DesktopScaling::Fill;
        int version = 0; ///< Counts how often it was lost: a desktop does not look at a name twice.
    };

    const Entry *find(const QString &path) const;
    bool isLost(const Entry &entry) const;
    int versionFor(const QString &picture) const;
    void load();
    void save() const;
    void use(const Entry &entry);
    void removeOthers() const;

    QString m_folder;
    CopyKind m_kind;
    QList<Entry> m_entries; ///< The last one first; two at most.
    QObject m_mainThread; ///< Receives the results; those still posted go with it.
    std::atomic<bool> m_stop = false;
    QThreadPool m_pool; ///< One thread: results come in order.
};

} // namespace moravel
