// SPDX-License-Identifier: MIT
#pragma once

#include "support/Answers.h"

#include "platform/Trash.h"
#include "platform/linux/PosixTrash.h"

namespace moravel::testing {

/// A Trash on the real disk that works, and answers, when the test lets it.
class DiskTrash : public Trash, public Answers
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

private:
    template <typename Work>
    void run(const QStringList &paths, const Done &done, Work work)
    {
        later([paths, done, work] {
            QList<FileResult<void>> results;
            for (const QString &path : paths)
                results.append(work(path));
            if (done)
                done(results);
        });
    }

    PosixTrash m_trash;
};

} // namespace moravel::testing
