// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Lane.h"
#include "server/core/Metrics.h"
#include "server/core/Recent.h"
#include "server/network/Alarms.h"
#include "server/network/AnswerStore.h"
#include "server/network/Asking.h"

#include <atomic>
#include <map>

namespace moravel::server {

/// What the books of all sources share; must outlive them.
struct BookSetup
{
    AnswerStore &store;
    UpstreamHttp &http;
    Lane &lookUps; ///< For looking into the store.
    Alarms &alarms;
    Metrics &metrics;
    std::function<QDateTime()> now;
    std::function<double()> chance; ///< From 0 to 1.
    std::chrono::milliseconds deadline = std::chrono::seconds(20); ///< For one asker.
};

/// All that is known of one source's days. Asks the source once for all who want to know of a day at
/// the same time, one day after the other, and not again before that makes sense. Whoever has waited
/// up to the deadline is told that the source is down; what it says later is kept for the next.
class AnswerBook
{
public:
    using Done = std::function<void(const Outcome &)>;

    AnswerBook(QString source, const Adapter &adapter, bool mayBePrivate, const BookSetup &setup);
    ~AnswerBook();
    AnswerBook(const AnswerBook &) = delete;
    AnswerBook &operator=(const AnswerBook &) = delete;

    /// Calls @p done once, at once or later, on any thread. With @p refresh the source is asked
    /// anew, but at most once a minute about the same day.
    void ask(QDate date, bool refresh, const Done &done);

    void stop(); ///< Sends all who wait away.

private:
    struct Waiter;

    struct Flight
    {
        std::vector<std::shared_ptr<Waiter>> waiters;
        std::chrono::steady_clock::time_point begun;
    };

    void lookUp(QDate date, bool refresh);
    void fetch(QDate date, bool refresh, const std::optional<StoredAnswer> &before);
    bool claim(QDate date, std::chrono::steady_clock::time_point deadline, bool refresh);
    StoredAnswer askSource(QDate date, const std::optional<StoredAnswer> &before);
    bool mayRecover(std::chrono::milliseconds patience, const QString &why = {});
    std::optional<StoredAnswer> stored(QDate date);
    std::optional<StoredAnswer> quiet();
    void keep(QDate date, const StoredAnswer &answer);
    void finish(QDate date, const StoredAnswer &answer);
    void tellAll(QDate date, const Outcome &outcome);
    bool pause(std::chrono::milliseconds time);

    const QString m_source;
    const Adapter &m_adapter;
    const bool m_mayBePrivate;
    const BookSetup m_setup;
    std::mutex m_mutex;
    std::condition_variable m_stopping;
    bool m_stopped = false;
    std::map<QDate, Flight> m_flights;
    std::atomic<std::chrono::steady_clock::time_point>
        m_failingSince{}; ///< The store; 0: it works.
    int m_failures = 0; ///< Of the source, in a row; known to its own thread only.
    Recent<StoredAnswer> m_recent;
    Lane m_lane; ///< Asks the source. Last: it is ended first.
};

} // namespace moravel::server
