// SPDX-License-Identifier: MIT
#include "server/network/AnswerBook.h"

#include "server/core/Log.h"

#include <atomic>

namespace moravel::server {

namespace {

using Steady = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int refreshSeconds = 60; ///< At least between two questions about one day.
constexpr qsizetype recentBytes = 1 << 19;

/// Under this day a source's silence is kept: it holds for all days.
const QDate everyDay(1, 1, 1);

QByteArray keyOf(QDate date)
{
    return QByteArray::number(date.toJulianDay());
}

bool isPicture(const Outcome &outcome)
{
    return std::holds_alternative<Picture>(outcome);
}

/// Whether it is the source itself that is down, not just one of its pictures.
bool isDown(const Outcome &outcome)
{
    const auto *down = std::get_if<SourceDown>(&outcome);
    return down && !down->thatDayOnly;
}

/// What the texts of an answer take in memory.
qsizetype bytesOf(const Outcome &outcome)
{
    constexpr qsizetype bookkeeping = 600;
    const auto *it = std::get_if<Picture>(&outcome);
    if (!it)
        return bookkeeping;
    const qsizetype characters = it->page.size() + it->caption.size() + it->info.size()
        + it->credit.size() + it->thumb.size() + it->normal.size() + it->full.size();
    return bookkeeping + characters * qsizetype(sizeof(QChar));
}

} // namespace

struct AnswerBook::Waiter
{
    Alarms &alarms;
    Done done;
    Alarms::Alarm alarm = {};
    std::atomic<bool> told{false};

    Waiter(Alarms &its, Done call) : alarms(its), done(std::move(call)) { }

    void tell(const Outcome &outcome)
    {
        if (told.exchange(true))
            return;
        alarms.cancel(alarm);
        done(outcome);
    }
};

AnswerBook::AnswerBook(QString source, const Adapter &adapter, bool mayBePrivate,
                       const BookSetup &setup)
    : m_source(std::move(source))
    , m_adapter(adapter)
    , m_mayBePrivate(mayBePrivate)
    , m_setup(setup)
    , m_recent(recentBytes)
    , m_lane(1, 1000)
{ }

AnswerBook::~AnswerBook()
{
    stop();
}

void AnswerBook::ask(QDate date, bool refresh, const Done &done)
{
    if (const auto recent = m_recent.find(keyOf(date));
        !refresh && recent && recent->holdsAt(m_setup.now()))
        return done(recent->outcome);
    const auto waiter = std::make_shared<Waiter>(m_setup.alarms, done);
    waiter->alarm =
        m_setup.alarms.at(Steady::now() + m_setup.deadline, [weak = std::weak_ptr(waiter)] {
            if (const auto late = weak.lock())
                late->tell(SourceDown{QStringLiteral("it takes too long to answer")});
        });
    bool isFirst = false;
    bool isTooLate = false;
    {
        const std::lock_guard lock(m_mutex);
        isTooLate = m_stopped;
        if (!m_stopped) {
            Flight &flight = m_flights[date];
            isFirst = flight.begun == Steady::time_point();
            if (isFirst)
                flight.begun = Steady::now();
            flight.waiters.push_back(waiter);
        }
    }
    if (isTooLate)
        return waiter->tell(SourceDown{QStringLiteral("the service is ending")});
    if (isFirst && !m_setup.lookUps.post([=, this] { lookUp(date, refresh); }))
        tellAll(date, SourceDown{QStringLiteral("the service has too much to do")});
}

void AnswerBook::stop()
{
    std::map<QDate, Flight> flights;
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        flights.swap(m_flights);
    }
    m_stopping.notify_all();
    m_lane.stop();
    for (const auto &[date, flight] : flights) {
        for (const auto &waiter : flight.waiters)
            waiter->tell(SourceDown{QStringLiteral("the service is ending")});
    }
}

/// False when the service ends meanwhile.
bool AnswerBook::pause(milliseconds time)
{
    std::unique_lock lock(m_mutex);
    return !m_stopping.wait_for(lock, time, [this] { return m_stopped; });
}

/// A store in trouble gets a little time: it may just be restarting, and asking sources again for
/// all that it knows would be worse. Waits a moment; false when it has failed for too long.
bool AnswerBook::mayRecover(milliseconds patience, const QString &why)
{
    constexpr milliseconds between(100);
    m_setup.metrics.add("store_faults_total");
    const auto now = Steady::now();
    Steady::time_point since;
    if (m_failingSince.compare_exchange_strong(since, now)) {
        since = now;
        qCInfo(serverLog) << "the answer store fails:" << why;
    }
    return now - since < patience && pause(between);
}

std::optional<StoredAnswer> AnswerBook::stored(QDate date)
{
    constexpr std::chrono::seconds patience(6);
    while (true) {
        const auto found = m_setup.store.find(m_source, date);
        if (found) {
            m_failingSince = Steady::time_point();
            return *found;
        }
        if (!mayRecover(patience, found.error()))
            return std::nullopt;
    }
}

/// What holds for all days because the source wants no questions now.
std::optional<StoredAnswer> AnswerBook::quiet()
{
    auto answer = m_recent.find(keyOf(everyDay));
    if (!answer || !answer->holdsAt(m_setup.now())) // Another process may know better.
        answer = stored(everyDay);
    return answer && answer->holdsAt(m_setup.now()) ? answer : std::nullopt;
}

void AnswerBook::lookUp(QDate date, bool refresh)
{
    auto found = stored(date);
    // What was told a moment ago may still be on its way into the store.
    if (const auto recent = m_recent.find(keyOf(date));
        recent && (!found || found->askedAt < recent->askedAt))
        found = recent;
    const QDateTime now = m_setup.now();
    const bool holds = found && found->holdsAt(now);
    const bool mayAsk = !holds || (refresh && found->askedAt.secsTo(now) >= refreshSeconds);
    if (!mayAsk)
        return finish(date, *found);
    if (const auto silence = quiet()) {
        const bool known = found && isPicture(found->outcome);
        return tellAll(date, known ? found->outcome : silence->outcome);
    }
    if (!m_lane.post([=, this] { fetch(date, refresh, found); }))
        tellAll(date, SourceDown{QStringLiteral("too much is asked of it")});
}

/// Waits for the right to ask. False when another process has asked meanwhile, or takes too long.
bool AnswerBook::claim(QDate date, Steady::time_point deadline, bool refresh)
{
    constexpr milliseconds between(50);
    const QDateTime begun = m_setup.now();
    while (true) {
        const auto claim = m_setup.store.claim(m_source, date);
        // Another process may have asked between the look-up and the claim, or while we waited.
        const auto found = claim == AnswerStore::Claim::Unknown ? std::nullopt : stored(date);
        const bool isNews = found && found->holdsAt(m_setup.now())
            && (!refresh || found->askedAt.secsTo(begun) < refreshSeconds);
        if (isNews) {
            if (claim == AnswerStore::Claim::Mine)
                m_setup.store.release(m_source, date);
            finish(date, *found);
            return false;
        }
        if (claim != AnswerStore::Claim::Others)
            return true;
        if (Steady::now() >= deadline || !pause(between)) {
            tellAll(date, SourceDown{QStringLiteral("it takes too long to answer")});
            return false;
        }
    }
}

void AnswerBook::fetch(QDate date, bool refresh, const std::optional<StoredAnswer> &before)
{
    const auto deadline = Steady::now() + m_setup.deadline;
    if (const auto silence = quiet(); silence && !(before && isPicture(before->outcome)))
        return tellAll(date, silence->outcome);
    if (!claim(date, deadline, refresh))
        return;
    const StoredAnswer answer = askSource(date, before);
    m_setup.metrics.add("asked_total{source=\"" + m_source.toUtf8() + "\",outcome=\""
                        + kindName(answer.outcome) + "\"}");
    finish(date, answer);
    keep(date, answer);
    if (std::holds_alternative<RateLimited>(answer.outcome) || isDown(answer.outcome)) {
        m_recent.put(keyOf(everyDay), answer, bytesOf(answer.outcome));
        keep(everyDay, answer);
    }
    m_setup.store.release(m_source, date);
}

StoredAnswer AnswerBook::askSource(QDate date, const std::optional<StoredAnswer> &before)
{
    Asking asking({m_setup.http, m_setup.now(), Steady::now() + m_setup.deadline, m_mayBePrivate});
    Outcome outcome = SourceDown{QStringLiteral("its answer cannot be read")};
    try {
        outcome = checked(m_adapter.ask(date, asking));
    } catch (const std::exception &e) {
        qCInfo(serverLog) << m_source << date << "cannot be read:" << e.what();
    }
    m_failures = isDown(outcome) ? m_failures + 1 : 0;
    if (const auto *down = std::get_if<SourceDown>(&outcome))
        qCInfo(serverLog) << m_source << date << down->why;
    const QDateTime now = m_setup.now();
    const QDateTime expires = expiryOf(outcome, now, m_failures, m_setup.chance());
    // A picture is not forgotten because its source could not repeat it.
    if (before && isPicture(before->outcome) && !isPicture(outcome))
        return {before->outcome, now, {}, m_failures};
    return {outcome, now, expires, m_failures};
}

void AnswerBook::keep(QDate date, const StoredAnswer &answer)
{
    constexpr std::chrono::seconds patience(10);
    do {
        if (m_setup.store.put(m_source, date, answer)) {
            m_failingSince = Steady::time_point();
            return;
        }
    } while (mayRecover(patience));
    qCWarning(serverLog) << "an answer could not be stored:" << m_source << date;
}

void AnswerBook::finish(QDate date, const StoredAnswer &answer)
{
    m_recent.put(keyOf(date), answer, bytesOf(answer.outcome));
    tellAll(date, answer.outcome);
}

void AnswerBook::tellAll(QDate date, const Outcome &outcome)
{
    std::vector<std::shared_ptr<Waiter>> waiters;
    {
        const std::lock_guard lock(m_mutex);
        waiters.swap(m_flights[date].waiters);
        m_flights.erase(date);
    }
    for (const auto &waiter : waiters)
        waiter->tell(outcome);
}

} // namespace moravel::server
