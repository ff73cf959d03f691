// SPDX-License-Identifier: MIT
#include "platform/qt/QtMainLoop.h"

#include <QPointer>

#include <algorithm>
#include <cmath>
#include <ctime>

namespace moravel {

namespace {

constexpr qint64 NsPerMs = 1'000'000;
constexpr qint64 NsPerSecond = 1'000'000'000;

// QTimer's own clock stands still while the computer sleeps; looking at ours at least this often
// tells how long it slept. It also keeps delays of months within QTimer's 31 bits of milliseconds.
constexpr qint64 LongestSleepMs = 60'000;

// Below this a coarse timer's 5 % would be felt.
constexpr qint64 PreciseBelowMs = 2'000;

qint64 clockNs()
{
    timespec time{};
    clock_gettime(CLOCK_BOOTTIME, &time);
    return time.tv_sec * NsPerSecond + time.tv_nsec;
}

qint64 toNs(double seconds)
{
    constexpr double thirtyYears = 1e9; // keeps sums within 64 bits
    if (!(seconds > 0))
        return 0;
    return std::llround(std::min(seconds, thirtyYears) * static_cast<double>(NsPerSecond));
}

} // namespace

struct QtMainLoop::Call
{
    std::function<void()> fn;
    qint64 interval = 0; ///< Nanoseconds; 0 runs once.
    bool isAnswer = false;
    bool cancelled = false;
    Key key;
};

class QtMainLoop::Handle : public DelayedCall
{
public:
    Handle(QtMainLoop *loop, std::shared_ptr<Call> call) : m_loop(loop), m_call(std::move(call)) { }

    ~Handle() override
    {
        m_call->cancelled = true;
        if (m_loop)
            m_loop->cancel(m_call);
    }

private:
    QPointer<QtMainLoop> m_loop;
    std::shared_ptr<Call> m_call;
};

class QtMainLoop::Hold : public LoopHold
{
public:
    explicit Hold(QtMainLoop *loop) : m_loop(loop) { }

    ~Hold() override
    {
        if (m_loop)
            m_loop->release();
    }

private:
    QPointer<QtMainLoop> m_loop;
};

QtMainLoop::QtMainLoop()
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &QtMainLoop::fire);
}

QtMainLoop::~QtMainLoop()
{
    // Calls may own handles of other calls, which look for themselves in m_calls as they die.
    const auto calls = std::exchange(m_calls, {});
}

QDateTime QtMainLoop::now() const
{
    return QDateTime::currentDateTime();
}

DelayedCallHandle QtMainLoop::after(double seconds, std::function<void()> fn)
{
    auto call = std::make_shared<Call>();
    call->fn = std::move(fn);
    return std::make_unique<Handle>(this, add(toNs(seconds), std::move(call)));
}

DelayedCallHandle QtMainLoop::every(double seconds, std::function<void()> fn)
{
    auto call = std::make_shared<Call>();
    call->fn = std::move(fn);
    call->interval = std::max(toNs(seconds), NsPerMs);
    const qint64 delay = call->interval;
    return std::make_unique<Handle>(this, add(delay, std::move(call)));
}

void QtMainLoop::schedule(double seconds, std::function<void()> fn)
{
    auto call = std::make_shared<Call>();
    call->fn = std::move(fn);
    add(toNs(seconds), std::move(call));
}

LoopHoldHandle QtMainLoop::hold()
{
    ++m_holds;
    return std::make_unique<Hold>(this);
}

void QtMainLoop::inOrder(std::function<void()> fn)
{
    if (m_holds == 0 && m_waitingAnswers == 0) {
        fn();
        return;
    }
    auto call = std::make_shared<Call>();
    call->fn = std::move(fn);
    call->isAnswer = true;
    ++m_waitingAnswers;
    add(0, std::move(call));
}

std::shared_ptr<QtMainLoop::Call> QtMainLoop::add(qint64 delay, std::shared_ptr<Call> call)
{
    call->key = {clockNs() + delay, m_order++};
    m_calls.emplace(call->key, call);
    arm();
    return call;
}

void QtMainLoop::cancel(const std::shared_ptr<Call> &call)
{
    // The extracted node goes last: what the call captured may cancel further calls as it dies.
    const auto node = m_calls.extract(call->key);
    arm();
}

void QtMainLoop::release()
{
    --m_holds;
    arm();
}

void QtMainLoop::arm()
{
    if (m_holds > 0 || m_calls.empty()) {
        m_timer.stop();
        return;
    }
    const qint64 wait = std::max<qint64>(m_calls.begin()->first.first - clockNs(), 0);
    const qint64 ms = std::min((wait + NsPerMs - 1) / NsPerMs, LongestSleepMs);
    m_timer.setTimerType(ms < PreciseBelowMs ? Qt::PreciseTimer : Qt::CoarseTimer);
    m_timer.start(static_cast<int>(ms));
}

void QtMainLoop::fire()
{
    if (m_holds > 0 || m_calls.empty() || m_calls.begin()->first.first > clockNs()) {
        arm();
        return;
    }
    const std::shared_ptr<Call> call = m_calls.extract(m_calls.begin()).mapped();
    if (call->isAnswer)
        --m_waitingAnswers;
    arm();
    const QPointer<QtMainLoop> alive(this);
    call->fn();
    if (!alive || call->interval == 0 || call->cancelled)
        return;
    // Ticks missed while held or asleep are dropped, they do not come in a burst.
    const qint64 next = call->key.first + call->interval;
    const qint64 present = clockNs();
    call->key = {next > present ? next : present + call->interval, m_order++};
    m_calls.emplace(call->key, call);
    arm();
}

} // namespace moravel
