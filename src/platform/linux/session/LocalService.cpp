// SPDX-License-Identifier: MIT
#include "platform/linux/session/LocalService.h"

#include "platform/linux/session/Log.h"

#include <QFileInfo>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>

#include <csignal>
#include <sys/prctl.h>
#include <utility>

namespace moravel {

namespace {

constexpr double Patience = 3; // seconds
constexpr double RestartSeconds = 60; // so that one that always fails costs little
constexpr int EndPatience = 1'000; // ms
constexpr int HttpPort = 80;

// The address to listen at; a null one when it is not this machine's.
QHostAddress loopback(const QUrl &url)
{
    const QHostAddress address(url.host() == u"localhost" ? QStringLiteral("127.0.0.1")
                                                          : url.host());
    const bool isServices = url.scheme() == u"http" && url.path() == u"/potd";
    return isServices && address.isLoopback() ? address : QHostAddress();
}

} // namespace

LocalService::LocalService(Setup setup, MainLoop &loop) : m_setup(std::move(setup)), m_loop(loop)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, [this] {
        if (!m_process.readAllStandardOutput().contains("listening on"))
            return;
        m_wasUp = true;
        finish();
    });
    connect(&m_process, &QProcess::finished, this, [this](int code) {
        qCInfo(lcSession) << "the picture service ended with" << code;
        finish();
        if (std::exchange(m_wasUp, false))
            m_again = m_loop.after(RestartSeconds, [this] { start(); });
    });
    connect(&m_process, &QProcess::errorOccurred, this, [this] {
        qCInfo(lcSession).noquote() << "the picture service:" << m_process.errorString();
        finish();
    });
}

LocalService::~LocalService()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(EndPatience))
        m_process.kill();
}

void LocalService::ensure(std::function<void()> done)
{
    m_done = std::move(done);
    m_deadline = m_loop.after(Patience, [this] { finish(); });
    const QHostAddress address = loopback(m_setup.address);
    if (address.isNull() || !QFileInfo(m_setup.program).isExecutable()) {
        m_deadline = m_loop.after(0, [this] { finish(); });
        return;
    }
    m_probe = std::make_unique<QTcpSocket>();
    m_probe->setProxy(QNetworkProxy::NoProxy);
    connect(m_probe.get(), &QTcpSocket::connected, this, [this] { finish(); });
    connect(m_probe.get(), &QTcpSocket::errorOccurred, this, [this] { start(); });
    m_probe->connectToHost(address, quint16(m_setup.address.port(HttpPort)));
}

void LocalService::start()
{
    QStringList arguments{QStringLiteral("--bind"), loopback(m_setup.address).toString(),
                          QStringLiteral("--port"),
                          QString::number(m_setup.address.port(HttpPort))};
    if (QFileInfo(m_setup.configuration).isReadable())
        arguments << QStringLiteral("--config") << m_setup.configuration;
    qCInfo(lcSession).noquote() << "nobody answers at" << m_setup.address.toString() << "- starting"
                                << m_setup.program;
    m_process.start(m_setup.program, arguments, QIODevice::ReadOnly);
}

void LocalService::finish()
{
    m_deadline.reset();
    if (m_probe)
        m_probe.release()->deleteLater(); // it may be the caller
    if (const auto done = std::exchange(m_done, {}))
        done();
}

} // namespace moravel
