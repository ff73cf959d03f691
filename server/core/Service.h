// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Metrics.h"
#include "server/core/Recent.h"
#include "server/core/SourceList.h"

#include <atomic>
#include <functional>

namespace moravel::server {

class DayLinks;

/// Answers requests. Knows nothing of sockets; handle() may be called from several threads at once
/// and takes anything that a client can send.
class Service
{
public:
    struct Setup
    {
        QString newsFile; ///< Empty when there is no news.
        QByteArray
            boundHost; ///< "127.0.0.1:8642": for links when the request names no usable host.
        std::function<QDateTime()> now; ///< Tests set the clock; the system's when empty.
        Lane *texts = nullptr; ///< Where answers are composed; null: at once.
        Lane *pictures = nullptr; ///< Where pictures are made or opened; null: at once.
        Metrics *metrics = nullptr; ///< Counts, when set.
        QString publicUrl = {}; ///< Begins all links, instead of the request's host, when set.
    };

    /// @p sources must outlive this object.
    Service(const SourceList &sources, Setup setup);

    /// Has @p answer called once, on any thread. What was answered lately is answered at once;
    /// nothing is waited for here.
    void handle(const Request &request, const Answer &answer) const;

    /// The address is known only once the port is bound. Not to be called while requests are
    /// answered.
    void setBoundHost(const QByteArray &host) { m_setup.boundHost = host; }

private:
    /// An answer's text as long as it may be given again.
    struct Kept
    {
        QByteArray text;
        qint64 untilMs = 0;
        int generation = 0;
    };

    bool answerKept(const Request &request, const Answer &answer) const;
    void compose(const Request &request, const Answer &answer) const;
    void route(const Request &request, const QString &path, const QByteArray &query,
               const Answer &answer) const;
    void answerDay(const Request &request, const QByteArray &form, const Answer &answer) const;
    Response answerNews() const;
    Response answerOperator(const Request &request, const QString &path) const;
    void answerPicture(const Request &request, const QString &name, const Answer &answer) const;
    void answerPage(const QString &name, const Answer &answer) const;
    void describe(const PictureSource *source, QDate date, bool refresh,
                  const PictureSource::Told &told) const;
    QString baseUrl(const Request &request) const;
    QDateTime now() const;

    const SourceList &m_sources;
    Setup m_setup;
    mutable Recent<Kept> m_kept;
    mutable std::atomic<quint64> m_keptAnswers{0};
    mutable std::atomic<int> m_generation{0}; ///< Counts the refreshes: they end what was kept.
};

} // namespace moravel::server
