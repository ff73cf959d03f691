// SPDX-License-Identifier: MIT
#include "server/network/PostgresStore.h"

#include "server/core/Log.h"

#include <QCryptographicHash>

#include <array>
#include <libpq-fe.h>

namespace moravel::server {

namespace {

constexpr const char *preparation = R"(
CREATE TABLE IF NOT EXISTS moravel_answers (
  source text NOT NULL, day integer NOT NULL, outcome text NOT NULL,
  asked_ms bigint NOT NULL, expires_ms bigint, failures integer NOT NULL,
  PRIMARY KEY (source, day)))";

struct Clear
{
    void operator()(PGresult *result) const { PQclear(result); }
};

using Result = std::unique_ptr<PGresult, Clear>;

/// Parameters as text; a null array stands for NULL.
template <std::size_t count>
Result ask(PGconn *session, const char *text, const std::array<QByteArray, count> &values)
{
    std::array<const char *, count> pointers{};
    for (std::size_t i = 0; i < count; ++i)
        pointers[i] = values[i].isNull() ? nullptr : values[i].constData();
    return Result(PQexecParams(session, text, static_cast<int>(count), nullptr, pointers.data(),
                               nullptr, nullptr, 0));
}

QByteArray dayOf(QDate date)
{
    return QByteArray::number(date.toJulianDay());
}

/// Advisory locks have numbers for names; this one tells ours from those of others.
QByteArray lockOf(const QString &source)
{
    const QByteArray hash =
        QCryptographicHash::hash("moravel/" + source.toUtf8(), QCryptographicHash::Sha256);
    return QByteArray::number(hash.left(4).toHex().toUInt(nullptr, 16) & 0x7fffffffU);
}

QDateTime momentOf(const char *ms)
{
    return QDateTime::fromMSecsSinceEpoch(QByteArray(ms).toLongLong(), Qt::UTC);
}

} // namespace

void PostgresStore::Close::operator()(pg_conn *connection) const
{
    PQfinish(connection);
}

PostgresStore::PostgresStore(const QString &conninfo) : m_conninfo(conninfo.toUtf8())
{
    if (auto session = take())
        giveBack(std::move(session));
    else
        qCWarning(serverLog) << "the database does not answer yet";
}

PostgresStore::~PostgresStore() = default;

PostgresStore::Session PostgresStore::open()
{
    using Clock = std::chrono::steady_clock;
    if (Clock::now() < m_awayUntil.load())
        return nullptr;
    // A database that hangs must not hold a request longer than its deadline.
    constexpr std::array<const char *, 6> keys{"dbname",  "connect_timeout",  "tcp_user_timeout",
                                               "options", "application_name", nullptr};
    const std::array<const char *, 6> values{
        m_conninfo.constData(),
        "3",
        "5000",
        "-c statement_timeout=5000 -c client_min_messages=warning",
        "moravel-service",
        nullptr};
    Session session(PQconnectdbParams(keys.data(), values.data(), 1));
    if (PQstatus(session.get()) != CONNECTION_OK) {
        const auto now = Clock::now();
        const auto before = m_awayUntil.exchange(now + std::chrono::seconds(1));
        if (now - before > std::chrono::minutes(1))
            qCInfo(serverLog) << QByteArray(PQerrorMessage(session.get())).trimmed();
        return nullptr;
    }
    // Several processes that begin at once may collide here; the table is there for the later one.
    const Result made(PQexec(session.get(), preparation));
    return session;
}

PostgresStore::Session PostgresStore::take()
{
    {
        const std::lock_guard lock(m_mutex);
        while (!m_idle.empty()) {
            Session session = std::move(m_idle.back());
            m_idle.pop_back();
            if (PQstatus(session.get()) == CONNECTION_OK)
                return session;
        }
    }
    return open();
}

void PostgresStore::giveBack(Session session)
{
    constexpr std::size_t most = 8;
    const std::lock_guard lock(m_mutex);
    if (session && PQstatus(session.get()) == CONNECTION_OK && m_idle.size() < most)
        m_idle.push_back(std::move(session));
}

void PostgresStore::forgetIdle()
{
    const std::lock_guard lock(m_mutex);
    m_idle.clear();
}

tl::expected<std::optional<StoredAnswer>, QString> PostgresStore::find(const QString &source,
                                                                       QDate date)
{
    // The second try meets a new session when the first one's database was restarted.
    QString why = QStringLiteral("the database is away");
    for (int i = 0; i < 2; ++i) {
        Session session = take();
        if (!session)
            break;
        const Result result = ask<2>(session.get(),
                                     "SELECT outcome, asked_ms, expires_ms, failures FROM "
                                     "moravel_answers WHERE source = $1 AND day = $2::integer",
                                     {source.toUtf8(), dayOf(date)});
        if (PQresultStatus(result.get()) != PGRES_TUPLES_OK) {
            why = QString::fromUtf8(PQerrorMessage(session.get())).trimmed();
            forgetIdle();
            continue;
        }
        giveBack(std::move(session));
        const auto outcome = PQntuples(result.get()) > 0
            ? outcomeFrom(PQgetvalue(result.get(), 0, 0))
            : std::nullopt;
        if (!outcome)
            return std::nullopt;
        StoredAnswer answer{*outcome,
                            momentOf(PQgetvalue(result.get(), 0, 1)),
                            {},
                            QByteArray(PQgetvalue(result.get(), 0, 3)).toInt()};
        if (PQgetisnull(result.get(), 0, 2) == 0)
            answer.expires = momentOf(PQgetvalue(result.get(), 0, 2));
        return answer;
    }
    return tl::unexpected(why);
}

bool PostgresStore::put(const QString &source, QDate date, const StoredAnswer &answer)
{
    Session session = take();
    if (!session)
        return false;
    const QByteArray expires = answer.expires.isValid()
        ? QByteArray::number(answer.expires.toMSecsSinceEpoch())
        : QByteArray();
    const Result result =
        ask<6>(session.get(),
               "INSERT INTO moravel_answers VALUES ($1, $2::integer, $3, $4::bigint, $5::bigint, "
               "$6::integer) ON CONFLICT (source, day) DO UPDATE SET outcome = excluded.outcome, "
               "asked_ms = excluded.asked_ms, expires_ms = excluded.expires_ms, failures = "
               "excluded.failures",
               {source.toUtf8(), dayOf(date), toJson(answer.outcome),
                QByteArray::number(answer.askedAt.toMSecsSinceEpoch()), expires,
                QByteArray::number(answer.failures)});
    const bool done = PQresultStatus(result.get()) == PGRES_COMMAND_OK;
    if (done)
        giveBack(std::move(session));
    else
        forgetIdle();
    return done;
}

AnswerStore::Claim PostgresStore::claim(const QString &source, QDate date)
{
    for (int i = 0; i < 2; ++i) {
        Session session = take();
        if (!session)
            break;
        const Result result =
            ask<2>(session.get(), "SELECT pg_try_advisory_lock($1::integer, $2::integer)",
                   {lockOf(source), dayOf(date)});
        if (PQresultStatus(result.get()) != PGRES_TUPLES_OK) {
            forgetIdle();
            continue;
        }
        if (PQgetvalue(result.get(), 0, 0)[0] != 't') {
            giveBack(std::move(session));
            return Claim::Others;
        }
        const std::lock_guard lock(m_mutex);
        m_claims[{source, date}] = std::move(session);
        return Claim::Mine;
    }
    return Claim::Unknown;
}

void PostgresStore::release(const QString &source, QDate date)
{
    Session session;
    {
        const std::lock_guard lock(m_mutex);
        auto claim = m_claims.extract({source, date});
        if (claim.empty())
            return;
        session = std::move(claim.mapped());
    }
    // A session that fails here is closed, and its lock with it.
    const Result result =
        ask<2>(session.get(), "SELECT pg_advisory_unlock($1::integer, $2::integer)",
               {lockOf(source), dayOf(date)});
    if (PQresultStatus(result.get()) == PGRES_TUPLES_OK)
        giveBack(std::move(session));
}

} // namespace moravel::server
