// SPDX-License-Identifier: MIT
#include "platform/linux/LinuxTrash.h"

#include <utility>

namespace moravel {

LinuxTrash::LinuxTrash(MainLoop &loop, PosixTrash trash) : m_loop(loop), m_trash(std::move(trash))
{
    m_pool.setMaxThreadCount(1);
}

LinuxTrash::~LinuxTrash()
{
    m_pool.waitForDone();
}

void LinuxTrash::moveToTrash(const QStringList &paths, Done done)
{
    const auto work = [trash = m_trash, now = m_loop.now()](const QString &path) {
        return trash.moveToTrash(path, now);
    };
    run(paths, work, std::move(done));
}

void LinuxTrash::restore(const QStringList &paths, Done done)
{
    const auto work = [trash = m_trash](const QString &path) { return trash.restore(path); };
    run(paths, work, std::move(done));
}

void LinuxTrash::run(const QStringList &paths, const Work &work, Done done)
{
    m_waiting.push_back(std::move(done));
    m_pool.start([this, paths, work] {
        QList<FileResult<void>> results;
        for (const QString &path : paths)
            results.append(work(path));
        QMetaObject::invokeMethod(
            this, [this, results] { answer(results); }, Qt::QueuedConnection);
    });
}

void LinuxTrash::answer(const QList<FileResult<void>> &results)
{
    const Done done = std::move(m_waiting.front());
    m_waiting.pop_front();
    if (done)
        done(results);
}

} // namespace moravel
