// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MainLoop.h"

#include <QProcess>
#include <QUrl>

#include <functional>
#include <memory>

class QTcpSocket;

namespace moravel {

/// The picture service, where the program is told to ask for it on its own machine.
///
/// As a rule the session keeps it (a socket of systemd). Where nobody listens at its address, in a session
/// without systemd for instance, this starts the one that is installed beside the program. That one ends with
/// this object, and with the process; where it ended by itself it is started again after a minute. Main thread only.
class LocalService : public QObject
{
public:
    struct Setup
    {
        QUrl
            address; ///< What the program asks. Elsewhere than on the loopback nothing is ever started.
        QString program; ///< Path of the service's program; it may be missing.
        QString configuration; ///< Path of its configuration; it may be missing.
    };

    LocalService(Setup setup, MainLoop &loop);
    ~LocalService() override;

    /// Calls @p done once, later: when the service answers, at the latest after 3 seconds. Once.
    void ensure(std::function<void()> done);

private:
    void start();
    void finish();

    Setup m_setup;
    MainLoop &m_loop;
    std::unique_ptr<QTcpSocket> m_probe;
    QProcess m_process;
    bool m_wasUp = false; ///< It answers, and did not end before that.
    DelayedCallHandle m_deadline;
    DelayedCallHandle m_again;
    std::function<void()> m_done;
};

} // namespace moravel
