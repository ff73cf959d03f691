// SPDX-License-Identifier: MIT
#include "server/core/RenderCache.h"

#include "server/core/Log.h"

namespace moravel::server {

namespace {

Unavailable busy()
{
    constexpr int seconds = 5;
    return {Reason::Busy, QStringLiteral("The service has too many pictures to make just now."),
            seconds};
}

QByteArray renderSafely(const QString &name, const RenderCache::Render &render)
{
    try {
        return render();
    } catch (const std::exception &e) {
        qCInfo(serverLog) << "making" << name << "failed:" << e.what();
    } catch (...) {
        qCInfo(serverLog) << "making" << name << "failed";
    }
    return {};
}

} // namespace

RenderCache::RenderCache(std::shared_ptr<CacheFolder> folder, Limits limits)
    : m_folder(std::move(folder)), m_limits(limits)
{ }

tl::expected<Content, Unavailable> RenderCache::picture(const QString &name, const Render &render)
{
    if (auto stored = m_folder->open(name))
        return *std::move(stored);
    Lock lock(m_mutex);
    if (const auto flight = m_flights.value(name))
        return join(name, flight, lock);
    return lead(name, render, lock);
}

void RenderCache::stop()
{
    const std::lock_guard lock(m_mutex);
    m_stopped = true;
    m_changed.notify_all();
}

tl::expected<Content, Unavailable>
RenderCache::join(const QString &name, const std::shared_ptr<Flight> &flight, Lock &lock)
{
    if (!waitFor([&] { return flight->done; }, lock))
        return tl::unexpected(busy());
    lock.unlock();
    return answer(name, flight->bytes);
}

tl::expected<Content, Unavailable> RenderCache::lead(const QString &name, const Render &render,
                                                     Lock &lock)
{
    const auto flight = std::make_shared<Flight>();
    m_flights.insert(name, flight);
    const bool mayRender = waitFor([&] { return m_rendering < m_limits.renders; }, lock);
    if (mayRender) {
        ++m_rendering;
        lock.unlock();
        // It may have been stored between the first look and the start of this flight.
        if (!m_folder->open(name)) {
            flight->bytes = renderSafely(name, render);
            if (!flight->bytes.isEmpty())
                m_folder->store(name, flight->bytes);
        }
        lock.lock();
        --m_rendering;
    }
    flight->done = true;
    m_flights.remove(name);
    m_changed.notify_all();
    lock.unlock();
    if (!mayRender)
        return tl::unexpected(busy());
    return answer(name, flight->bytes);
}

bool RenderCache::waitFor(const std::function<bool()> &ready, Lock &lock)
{
    if (m_stopped)
        return false;
    if (ready())
        return true;
    if (m_waiting >= m_limits.waiting)
        return false;
    ++m_waiting;
    m_changed.wait(lock, [&] { return m_stopped || ready(); });
    --m_waiting;
    return !m_stopped;
}

tl::expected<Content, Unavailable> RenderCache::answer(const QString &name, const QByteArray &bytes)
{
    if (auto stored = m_folder->open(name))
        return *std::move(stored);
    if (bytes.isEmpty())
        return tl::unexpected(
            Unavailable{Reason::SourceDown, QStringLiteral("The picture could not be made."), 60});
    return Content{bytes, nullptr, "image/jpeg", {}};
}

} // namespace moravel::server
