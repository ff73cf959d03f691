// SPDX-License-Identifier: MIT
#pragma once

#include "support/Answers.h"

#include "platform/Http.h"

#include <functional>
#include <list>
#include <optional>

namespace moravel::testing {

/// An HTTP client whose answers a test gives. Nothing is delivered from within a request.
class FakeHttp : public HttpClient
{
public:
    struct Answer
    {
        QByteArray body = {};
        int status = 200;
        QString failure = {}; ///< Not empty: the request fails with this description.
    };

    /// Answers a request; nothing lets it hang.
    std::function<std::optional<Answer>(const HttpRequest &)> answer;

    QList<HttpRequest> requests; ///< All that were sent.

    HttpCallHandle start(const HttpRequest &request, HttpHandlers handlers) override
    {
        if (!request.url.scheme().startsWith(QLatin1String("http")))
            return nullptr;
        const auto pending = add({request, std::move(handlers), {}});
        return std::make_unique<AtEnd<HttpCall>>([pending] { pending->cancelled = true; });
    }

    void fetch(const HttpRequest &request, std::function<void(FetchResult)> done) override
    {
        add({request, {}, std::move(done)});
    }

    /// Delivers what can be answered, until nothing more can. Returns whether anything was.
    bool deliver()
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

    /// Bodies of the POST requests, in order.
    QStringList posts() const
    {
        QStringList list;
        for (const HttpRequest &request : requests) {
            if (request.method == "POST")
                list.append(QString::fromUtf8(request.body));
        }
        return list;
    }

private:
    struct Pending
    {
        HttpRequest request;
        HttpHandlers handlers;
        std::function<void(FetchResult)> done;
        bool cancelled = false;
    };

    std::shared_ptr<Pending> add(Pending pending)
    {
        requests.append(pending.request);
        return m_pending.emplace_back(std::make_shared<Pending>(std::move(pending)));
    }

    static void hand(Pending &pending, const Answer &given)
    {
        const HttpHandlers handlers = pending.handlers;
        if (!given.failure.isEmpty() || given.status >= 400) {
            const HttpError error{given.status >= 400 ? given.status : 0,
                                  given.failure.isEmpty() ? QStringLiteral("bad status")
                                                          : given.failure};
            return pending.done ? pending.done(tl::unexpected(error)) : handlers.onFailed(error);
        }
        if (pending.done)
            return pending.done(given.body);
        if (handlers.onResponse)
            handlers.onResponse({given.status, given.body.size(), {}});
        if (handlers.onData && !given.body.isEmpty() && !pending.cancelled)
            handlers.onData(given.body);
        if (!pending.cancelled)
            handlers.onFinished();
    }

    std::list<std::shared_ptr<Pending>> m_pending;
};

} // namespace moravel::testing
