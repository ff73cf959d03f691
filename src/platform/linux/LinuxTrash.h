// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MainLoop.h"
#include "platform/Trash.h"
#include "platform/linux/PosixTrash.h"

#include <QObject>
#include <QThreadPool>

#include <deque>

namespace moravel {

/// Works on the Trash in a thread of its own. Its destructor waits until all that was asked for is done: a
/// file that counts as deleted is not left behind by the end of the program.
class LinuxTrash : public QObject, public Trash
{
    Q_OBJECT

public:
    /// @p loop, which must outlive this object, dates the deletions.
    explicit LinuxTrash(MainLoop &loop, PosixTrash trash = PosixTrash());
    ~LinuxTrash() override;

    void moveToTrash(const QStringList &paths, Done done) override;
    void restore(const QStringList &paths, Done done) override;

private:
    using Work = std::function<FileResult<void>(const QString &path)>;
    void run(const QStringList &paths, const Work &work, Done done);
    void answer(const QList<FileResult<void>> &results);

    MainLoop &m_loop;
    PosixTrash m_trash;
    std::deque<Done> m_waiting; ///< Never in the other thread: they may hold the main loop.
    QThreadPool m_pool; ///< Of one thread, which keeps the order.
};

} // namespace moravel
