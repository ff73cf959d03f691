// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QThreadPool>

#include <functional>

namespace moravel {

/// One worker thread. Destroying it waits for the work under way and drops the rest, with all answers.
class Worker
{
public:
    Worker() { m_pool.setMaxThreadCount(1); }

    ~Worker()
    {
        m_pool.clear();
        m_pool.waitForDone();
    }

    Q_DISABLE_COPY_MOVE(Worker)

    /// Runs @p work on the thread, then @p done on the main one; one after the other, in order.
    void run(std::function<void()> work, std::function<void()> done)
    {
        m_pool.start([this, work = std::move(work), done = std::move(done)] {
            work();
            QMetaObject::invokeMethod(&m_mainThread, done, Qt::QueuedConnection);
        });
    }

private:
    QObject m_mainThread; ///< Receives the answers; those still posted go with it.
    QThreadPool m_pool;
};

} // namespace moravel
