// SPDX-License-Identifier: MIT
#include "platform/qt/QtHttp.h"

#include "platform/qt/HttpExchange.h"
#include "platform/qt/HttpRules.h"

#include <QNetworkAccessManager>

namespace moravel {

struct QtHttp::Network
{
    QNetworkAccessManager shared;
    QObject exchanges; // last: its children use the manager until they are gone
};

namespace {

class Call : public HttpCall
{
public:
    explicit Call(HttpExchange *exchange) : m_exchange(exchange) { }

    ~Call() override
    {
        if (m_exchange)
            m_exchange->cancel();
    }

private:
    QPointer<HttpExchange> m_exchange;
};

} // namespace

QtHttp::QtHttp() : m_network(std::make_unique<Network>())
{ }

QtHttp::~QtHttp() = default;

HttpExchange *QtHttp::send(const HttpRequest &request, HttpHandlers handlers)
{
    if (!httprules::isSendable(request))
        return nullptr;
    return new HttpExchange(m_network->shared, request, std::move(handlers), &m_network->exchanges);
}

HttpCallHandle QtHttp::start(const HttpRequest &request, HttpHandlers handlers)
{
    HttpExchange *exchange = send(request, std::move(handlers));
    return exchange ? std::make_unique<Call>(exchange) : nullptr;
}

void QtHttp::fetch(const HttpRequest &request, std::function<void(FetchResult)> done)
{
    const auto bytes = std::make_shared<QByteArray>();
    HttpHandlers handlers;
    handlers.onData = [bytes](const QByteArray &block) { bytes->append(block); };
    handlers.onFinished = [bytes, done] { done(std::move(*bytes)); };
    handlers.onFailed = [done](const HttpError &error) { done(tl::unexpected(error)); };
    if (!send(request, std::move(handlers)))
        QTimer::singleShot(0, &m_network->exchanges,
                           [done] { done(tl::unexpected(httprules::cannotSend())); });
}

} // namespace moravel
