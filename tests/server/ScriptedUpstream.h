// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/Jpeg.h"
#include "server/core/Lane.h"
#include "server/http/HttpServer.h"

#include <QUrl>

#include <map>

namespace moravel::server {

/// A source on loopback: answers by target, "@" in a text standing for its own address.
class ScriptedUpstream
{
public:
    struct Route
    {
        QByteArray target;
        QByteArray body; ///< "JPEG" stands for a picture of 64 by 32 pixels.
        int status = 200;
        QByteArray header = {}; ///< "Name: value"; with a type the body goes out as it is.
    };

    explicit ScriptedUpstream(std::vector<Route> routes = {})
        : m_server([this](const Request &request, const Answer &answer) { give(request, answer); })
    {
        m_base = "http://127.0.0.1:"
            + QByteArray::number(m_server.bind(QStringLiteral("127.0.0.1"), 0).value());
        for (Route &route : routes)
            set(std::move(route));
        m_thread = std::thread([this] { m_server.run(); });
    }

    ~ScriptedUpstream()
    {
        letGo();
        m_server.stop();
        m_thread.join();
    }

    ScriptedUpstream(const ScriptedUpstream &) = delete;
    ScriptedUpstream &operator=(const ScriptedUpstream &) = delete;

    QByteArray base() const { return m_base; }

    QUrl url(const char *path = "") const { return QUrl(QString::fromLatin1(m_base + path)); }

    void set(Route route)
    {
        const std::lock_guard lock(m_mutex);
        if (!route.header.startsWith("Content-Type"))
            route.body.replace('@', m_base);
        route.header.replace('@', m_base);
        m_routes[route.target] = std::move(route);
    }

    int count(const QByteArray &target)
    {
        const std::lock_guard lock(m_mutex);
        return m_counts[target];
    }

    void hold() { m_holding = true; } ///< Answers nothing until letGo().

    void letGo()
    {
        const std::lock_guard lock(m_mutex);
        m_holding = false;
        for (const auto &answer : m_held)
            answer();
        m_held.clear();
    }

private:
    void give(const Request &request, const Answer &answer)
    {
        const std::lock_guard lock(m_mutex);
        ++m_counts[request.target];
        const auto at = m_routes.find(request.target);
        Response response = at == m_routes.end()
            ? Response{404, {"no", nullptr, "text/html", {}}, {}}
            : responseOf(at->second);
        if (m_holding)
            m_held.push_back([answer, response] { answer(response); });
        else
            answer(response);
    }

    static Response responseOf(const Route &route)
    {
        Response response{route.status, {route.body, nullptr, "text/html", {}}, {}};
        if (route.body == "JPEG") {
            QImage image(64, 32, QImage::Format_RGB32);
            image.fill(Qt::darkGreen);
            response.content.bytes = encodedJpeg(image, PictureKind::Normal);
            response.content.type = "image/jpeg";
        }
        const qsizetype colon = route.header.indexOf(": ");
        if (route.header.startsWith("Content-Type"))
            response.content.type = route.header.mid(colon + 2);
        else if (colon > 0)
            response.headers.emplace_back(route.header.left(colon), route.header.mid(colon + 2));
        return response;
    }

    HttpServer m_server;
    QByteArray m_base;
    std::mutex m_mutex;
    std::map<QByteArray, Route> m_routes;
    std::map<QByteArray, int> m_counts;
    std::atomic<bool> m_holding{false};
    std::vector<std::function<void()>> m_held;
    std::thread m_thread;
};

} // namespace moravel::server
