// SPDX-License-Identifier: MIT
#include "support/FakeHttp.h"

namespace moravel::testing {

struct FakeHttp::Pending
{
    HttpRequest request;
    HttpHandlers handlers;
    std::function<void(FetchResult)> done;
    bool cancelled = false;
};

class FakeHttp::Call : public HttpCall
{
public:
    Call(FakeHttp &http, std::shared_ptr<Pending> pending)
        : m_http(http), m_pending(std::move(pending))
    {
        m_http.mostInFlight = std::max(m_http.mostInFlight, ++m_http.inFlight);
    }

    ~Call() override
    {
        m_pending->cancelled = true;
        --m_http.inFlight;
    }

private:
    FakeHttp &m_http;
    std::shared_ptr<Pending> m_pending;
};

void FakeHttp::add(const HttpRequest &request, std::shared_ptr<Pending> pending)
{
    requests.append(request);
    pending->request = request;
    m_pending.push_back(std::move(pending));
}

HttpCallHandle FakeHttp::start(const HttpRequest &request, HttpHandlers handlers)
{
    if (!request.url.scheme().startsWith(QLatin1String("http")))
        return nullptr;
    auto pending = std::make_shared<Pending>();
    pending->handlers = std::move(handlers);
    add(request, pending);
    return std::make_unique<Call>(*this, pending);
}

void FakeHttp::fetch(const HttpRequest &request, std::function<void(FetchResult)> done)
{
    auto pending = std::make_shared<Pending>();
    pending->done = std::move(done);
    add(request, pending);
}

void FakeHttp::hand(Pending &pending, const Answer &given)
{
    const bool bad = !given.failure.isEmpty() || given.status >= 400;
    const HttpError error{given.status >= 400 ? given.status : 0,
                          bad && given.failure.isEmpty() ? QStringLiteral("bad status")
                                                         : given.failure};
    if (pending.done) {
        pending.done(bad ? FetchResult(tl::unexpect, error) : FetchResult(given.body));
        return;
    }
    const HttpHandlers handlers = pending.handlers;
    if (bad) {
        handlers.onFailed(error);
        return;
    }
    const qint64 length = given.expectedLength == -2 ? given.body.size() : given.expectedLength;
    if (handlers.onResponse)
        handlers.onResponse({given.status, length, {}});
    if (handlers.onData && !given.body.isEmpty() && !pending.cancelled)
        handlers.onData(given.body);
    if (!pending.cancelled)
        handlers.onFinished();
}

bool FakeHttp::deliver()
{
    bool delivered = false;
    for (auto it = m_pending.begin(); it != m_pending.end();) {
        const std::shared_ptr<Pending> pending = *it;
        const std::optional<Answer> given =
            pending->cancelled ? std::nullopt : answer(pending->request);
        if (!pending->cancelled && !given) {
            ++it;
            continue;
        }
        m_pending.erase(it);
        if (given)
            hand(*pending, *given);
        delivered = true;
        it = m_pending.begin();
    }
    return delivered;
}

QStringList FakeHttp::posts() const
{
    QStringList list;
    for (const HttpRequest &request : requests) {
        if (request.method == "POST")
            list.append(QString::fromUtf8(request.body));
    }
    return list;
}

} // namespace moravel::testing
