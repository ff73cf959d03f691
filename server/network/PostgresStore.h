// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/AnswerStore.h"

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

struct pg_conn;

namespace moravel::server {

/// Keeps answers in a PostgreSQL database that any number of processes share. A claim is an advisory
/// lock of a database session: it ends with the process that holds it, however that ends.
class PostgresStore : public AnswerStore
{
public:
    /// @p conninfo as libpq reads it: "postgresql://user@host/database". The database may be away
    /// now and come later.
    explicit PostgresStore(const QString &conninfo);
    ~PostgresStore() override;

    tl::expected<std::optional<StoredAnswer>, QString> find(const QString &source,
                                                            QDate date) override;
    bool put(const QString &source, QDate date, const StoredAnswer &answer) override;
    Claim claim(const QString &source, QDate date) override;
    void release(const QString &source, QDate date) override;

private:
    struct Close
    {
        void operator()(pg_conn *connection) const;
    };

    using Session = std::unique_ptr<pg_conn, Close>;
    using Key = std::pair<QString, QDate>;

    Session take(); ///< A working session; null when the database is away.
    void giveBack(Session session);
    Session open();
    void forgetIdle(); ///< They are as broken as the one that just failed.

    const QByteArray m_conninfo;
    /// Until then the database is taken to be away: one that hangs costs seconds each time.
    std::atomic<std::chrono::steady_clock::time_point> m_awayUntil{};
    std::mutex m_mutex;
    std::vector<Session> m_idle;
    std::map<Key, Session> m_claims; ///< The sessions that hold the locks.
};

} // namespace moravel::server
