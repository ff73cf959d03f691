// SPDX-License-Identifier: MIT
#include "server/network/SqliteStore.h"

#include "server/core/Log.h"

#include <QDir>
#include <QFileInfo>

#include <sqlite3.h>

namespace moravel::server {

namespace {

constexpr const char *preparation = R"(
PRAGMA journal_mode = WAL;
PRAGMA synchronous = NORMAL;
PRAGMA cache_size = -2000;
CREATE TABLE IF NOT EXISTS answers (
  source TEXT NOT NULL, day INTEGER NOT NULL, outcome TEXT NOT NULL,
  asked_ms INTEGER NOT NULL, expires_ms INTEGER, failures INTEGER NOT NULL,
  PRIMARY KEY (source, day)) WITHOUT ROWID;)";

struct Finaliser
{
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};

using Statement = std::unique_ptr<sqlite3_stmt, Finaliser>;

Statement prepared(sqlite3 *database, const char *text)
{
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(database, text, -1, &statement, nullptr);
    return Statement(statement);
}

void bindText(const Statement &statement, int at, const QByteArray &text)
{
    sqlite3_bind_text(statement.get(), at, text.constData(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
}

QDateTime momentOf(qint64 ms)
{
    return QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC);
}

} // namespace

/// @p code says of what kind the fault is.
tl::expected<std::unique_ptr<SqliteStore>, QString> SqliteStore::tryOpen(const QString &path,
                                                                         int &code)
{
    constexpr int patienceMs = 2000;
    sqlite3 *database = nullptr;
    code = sqlite3_open_v2(QFile::encodeName(path).constData(), &database,
                           SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    std::unique_ptr<SqliteStore> store(new SqliteStore(database));
    if (code == SQLITE_OK) {
        sqlite3_busy_timeout(database, patienceMs);
        code = sqlite3_exec(database, preparation, nullptr, nullptr, nullptr);
    }
    if (code == SQLITE_OK)
        return store;
    return tl::unexpected(QString::fromUtf8(sqlite3_errmsg(database)));
}

tl::expected<std::unique_ptr<SqliteStore>, QString> SqliteStore::open(const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    int code = SQLITE_OK;
    auto store = tryOpen(path, code);
    if (code != SQLITE_NOTADB && code != SQLITE_CORRUPT)
        return store;
    // What it held can be asked for again; keeping the service down for it helps nobody.
    qCWarning(serverLog) << "damaged answer store put aside:" << path << store.error();
    for (const char *part : {"", "-wal", "-shm"}) {
        const QString name = path + QLatin1StringView(part);
        QFile::remove(name + QLatin1StringView(".damaged"));
        QFile::rename(name, name + QLatin1StringView(".damaged"));
    }
    return tryOpen(path, code);
}

SqliteStore::~SqliteStore()
{
    sqlite3_close(m_database);
}

tl::expected<std::optional<StoredAnswer>, QString> SqliteStore::find(const QString &source,
                                                                     QDate date)
{
    const std::lock_guard lock(m_mutex);
    const Statement statement = prepared(m_database,
                                         "SELECT outcome, asked_ms, expires_ms, failures FROM "
                                         "answers WHERE source = ? AND day = ?");
    bindText(statement, 1, source.toUtf8());
    sqlite3_bind_int64(statement.get(), 2, date.toJulianDay());
    const int step = sqlite3_step(statement.get());
    if (step == SQLITE_DONE)
        return std::nullopt;
    if (step != SQLITE_ROW)
        return tl::unexpected(QString::fromUtf8(sqlite3_errmsg(m_database)));
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement.get(), 0));
    const auto outcome = outcomeFrom(QByteArray(text));
    if (!outcome)
        return std::nullopt;
    StoredAnswer answer{*outcome,
                        momentOf(sqlite3_column_int64(statement.get(), 1)),
                        {},
                        sqlite3_column_int(statement.get(), 3)};
    if (sqlite3_column_type(statement.get(), 2) != SQLITE_NULL)
        answer.expires = momentOf(sqlite3_column_int64(statement.get(), 2));
    return answer;
}

bool SqliteStore::put(const QString &source, QDate date, const StoredAnswer &answer)
{
    const std::lock_guard lock(m_mutex);
    const Statement statement =
        prepared(m_database, "INSERT OR REPLACE INTO answers VALUES (?, ?, ?, ?, ?, ?)");
    bindText(statement, 1, source.toUtf8());
    sqlite3_bind_int64(statement.get(), 2, date.toJulianDay());
    bindText(statement, 3, toJson(answer.outcome));
    sqlite3_bind_int64(statement.get(), 4, answer.askedAt.toMSecsSinceEpoch());
    if (answer.expires.isValid())
        sqlite3_bind_int64(statement.get(), 5, answer.expires.toMSecsSinceEpoch());
    sqlite3_bind_int(statement.get(), 6, answer.failures);
    return sqlite3_step(statement.get()) == SQLITE_DONE;
}

} // namespace moravel::server
