// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Http.h"

#include <QObject>

#include <memory>

namespace moravel {

class HttpExchange;

/// The HTTP client on Qt's network access manager: HTTP/1.1, http and https, at most five
/// redirects.
///
/// Stores and sends no cookies, answers no login, keeps no cache. Answers compressed in transfer
/// come unpacked, and limits count the unpacked bytes. A POST goes out once, on a connection of its
/// own. Destroying the client ends all requests without a further callback.
class QtHttp : public HttpClient
{
public:
    QtHttp();
    ~QtHttp() override;

    HttpCallHandle start(const HttpRequest &request, HttpHandlers handlers) override;
    void fetch(const HttpRequest &request, std::function<void(FetchResult)> done) override;

private:
    struct Network;

    HttpExchange *send(const HttpRequest &request, HttpHandlers handlers);

    std::unique_ptr<Network> m_network;
};

} // namespace moravel
