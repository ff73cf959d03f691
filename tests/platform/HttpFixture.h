// SPDX-License-Identifier: MIT
#pragma once

#include "support/LoopbackServer.h"
#include "support/Test.h"

#include "platform/qt/QtHttp.h"

namespace moravel::testing {

inline HttpRequest get(const QUrl &url)
{
    HttpRequest request;
    request.url = url;
    return request;
}

inline HttpRequest post(const QUrl &url, const QByteArray &body)
{
    HttpRequest request = get(url);
    request.method = "POST";
    request.headers = {{"Content-Type", "application/x-www-form-urlencoded"},
                       {"Content-Length", QByteArray::number(body.size())}};
    request.body = body;
    return request;
}

/// A client and the server it talks to.
struct HttpFixture : ::testing::Test
{
    FetchResult fetch(const HttpRequest &request)
    {
        std::optional<FetchResult> result;
        http.fetch(request, [&](FetchResult answer) { result = std::move(answer); });
        EXPECT_FALSE(result) << "called back from within fetch()";
        EXPECT_TRUE(waitFor([&] { return result.has_value(); }));
        return result.value_or(tl::unexpected(HttpError{-1, u"no answer"_s}));
    }

    /// Fetches the path of that name, which answers so.
    FetchResult fetchScripted(const char *name, const LoopbackServer::Answer &answer)
    {
        const QUrl url = server.url(u'/' + QString::fromLatin1(name));
        server.answer(url.path(QUrl::FullyEncoded).toLatin1(), answer);
        return fetch(get(url));
    }

    LoopbackServer server;
    QtHttp http;
};

} // namespace moravel::testing
