// SPDX-License-Identifier: MIT
#pragma once

#include "server/network/AnswerStore.h"

#include <memory>
#include <mutex>

struct sqlite3;

namespace moravel::server {

/// Keeps answers in one file, for one process.
class SqliteStore : public AnswerStore
{
public:
    /// Opens or makes the file; a damaged one is put aside. The error says what is wrong.
    static tl::expected<std::unique_ptr<SqliteStore>, QString> open(const QString &path);
    ~SqliteStore() override;

    tl::expected<std::optional<StoredAnswer>, QString> find(const QString &source,
                                                            QDate date) override;
    bool put(const QString &source, QDate date, const StoredAnswer &answer) override;

    Claim claim(const QString &, QDate) override { return Claim::Mine; }

    void release(const QString &, QDate) override { }

private:
    explicit SqliteStore(sqlite3 *database) : m_database(database) { }

    static tl::expected<std::unique_ptr<SqliteStore>, QString> tryOpen(const QString &path,
                                                                       int &code);

    sqlite3 *const m_database;
    std::mutex m_mutex;
};

} // namespace moravel::server
