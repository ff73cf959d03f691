// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QHash>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>

namespace moravel {

/// Screen-sized stand-ins for large pictures, for desktops that keep every picture they were given in
/// memory. Lives in a folder of its own, which holds the last two copies and a list that tells whose
/// copies they are; nothing else in the folder is touched. Main thread only; decoding and writing
/// happen in a thread.
class ScaledCopies
{
public:
    /// @p folder is made when the first copy is. With @p plainNames a picture whose path has a %, # or ?
    /// gets at least a link with a plain name. @p cuts: for a desktop that fills a screen only by
    /// stretching; its copies have the shape of the first screen.
    explicit ScaledCopies(const QString &folder, bool plainNames = false, bool cuts = false);
    ~ScaledCopies();

    /// Finds the file to hand to the desktop for @p picture (a plain path): a copy, made if it is
    /// missing, or the picture itself when it is not much larger than what @p screens show, or cannot
    /// be read or copied. Calls @p done later, never from within, in the order of the calls.
    void prepare(const QString &picture, const QList<QSize> &screens, DesktopScaling scaling,
                 std::function<void(QString)> done);

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
    bool m_plainNames;
    bool m_cuts;
    QList<Entry> m_entries; ///< The last one first; two at most.
    QObject m_mainThread; ///< Receives the results; those still posted go with it.
    std::atomic<bool> m_stop = false;
    QThreadPool m_pool; ///< One thread: results come in order.
};

} // namespace moravel
