// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Trash.h"
#include "platform/linux/PosixTrash.h"

#include <deque>

namespace moravel::testing {

/// A Trash on the real disk that works, and answers, when the test lets it.
class DiskTrash : public Trash
{
public:
    explicit DiskTrash(const QString &homeTrash) : m_trash(homeTrash) { }

    void moveToTrash(const QStringList &paths, Done done) override
    {
        run(paths, done, [this](const QString &path) {
            return m_trash.moveToTrash(path, QDateTime(QDate(2011, 7, 4), QTime(9, 30)));
        });
    }

    void restore(const QStringList &paths, Done done) override
    {
        run(paths, done, [this](const QString &path) { return m_trash.restore(path); });
    }

    bool deliver()
    {
        const bool any = !m_waiting.empty();
        while (!m_waiting.empty()) {
            const auto work = std::move(m_waiting.front());
            m_waiting.pop_front();
            work();
        }
        return any;
    }

private:
    template <typename Work>
    void run(const QStringList &paths, const Done &done, Work work)
    {
        m_waiting.push_back([paths, done, work] {
            QList<FileResult<void>> results;
            for (const QString &path : paths)
                results.append(work(path));
            if (done)
                done(results);
        });
    }

    PosixTrash m_trash;
    std::deque<std::function<void()>> m_waiting;
};

} // namespace moravel::testing
