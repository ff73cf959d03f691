// SPDX-License-Identifier: MIT
#pragma once

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
        qint64 expectedLength = -2; ///< -2: the true length.
        QString failure = {}; ///< Not empty: the request fails with this description.
    };

    /// Answers a request; nothing lets it hang.
    std::function<std::optional<Answer>(const HttpRequest &)> answer;

    QList<HttpRequest> requests; ///< All that were sent.
    int inFlight = 0; ///< Requests of start() under way.
    int mostInFlight = 0;

    HttpCallHandle start(const HttpRequest &request, HttpHandlers handlers) override;
    void fetch(const HttpRequest &request, std::function<void(FetchResult)> done) override;

    /// Delivers what can be answered, until nothing more can. Returns whether anything was.
    bool deliver();

    /// Bodies of the POST requests, in order.
    QStringList posts() const;

private:
    struct Pending;
    class Call;
    void add(const HttpRequest &request, std::shared_ptr<Pending> pending);
    void hand(Pending &pending, const Answer &answer);
    std::list<std::shared_ptr<Pending>> m_pending;
};

} // namespace moravel::testing
