// SPDX-License-Identifier: MIT
#pragma once

#include "support/Answers.h"

#include "platform/Thumbnails.h"

#include <QStringList>

#include <algorithm>
#include <list>

namespace moravel::testing {

/// Thumbnails that come at deliver(), in the order in which they were asked for; files called "bad" fail.
class FakeThumbnails : public Thumbnails
{
public:
    int atOnce() const override { return 2; }

    ThumbnailCallHandle load(const QString &path, QSize box,
                             std::function<void(const Thumbnail &)> done) override
    {
        m_waiting.push_back({++m_next, path, box, std::move(done)});
        return std::make_unique<AtEnd<ThumbnailCall>>([this, number = m_next] {
            m_waiting.remove_if([number](const Job &job) { return job.number == number; });
        });
    }

    QStringList waiting() const
    {
        QStringList paths;
        for (const Job &job : m_waiting)
            paths.append(job.path);
        return paths;
    }

    /// Answers the first call; false when there is none.
    bool deliver()
    {
        if (m_waiting.empty())
            return false;
        const Job job = m_waiting.front();
        m_waiting.pop_front();
        QImage image(job.box, QImage::Format_RGB32);
        image.fill(Qt::darkCyan);
        job.done({job.path.contains(QLatin1String("bad")) ? QImage() : image, 1234});
        return true;
    }

private:
    struct Job
    {
        int number;
        QString path;
        QSize box;
        std::function<void(const Thumbnail &)> done;
    };

    std::list<Job> m_waiting;
    int m_next = 0;
};

} // namespace moravel::testing
