// SPDX-License-Identifier: MIT
#include "platform/linux/session/EndSignals.h"

#include "platform/linux/session/Log.h"

#include <atomic>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace moravel {

namespace {

constexpr int Signals[] = {SIGTERM, SIGINT, SIGHUP};

std::atomic<int> writeEnd = -1;

// Only what may be done inside of a signal handler.
void handle(int)
{
    const int saved = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &byte, 1);
    errno = saved;
}

} // namespace

EndSignals::EndSignals(std::function<void()> asked)
{
    if (::pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        qCWarning(lcSession) << "no pipe for signals";
        return;
    }
    writeEnd = m_pipe[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this, asked = std::move(asked)] {
                         m_notifier->setEnabled(false);
                         asked();
                     });
    struct sigaction action = {};
    action.sa_handler = handle;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int number : Signals) {
        struct sigaction before = {};
        if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            ::sigaction(number, &action, nullptr);
    }
}

EndSignals::~EndSignals()
{
    for (const int number : Signals) {
        struct sigaction now = {};
        if (::sigaction(number, nullptr, &now) == 0 && now.sa_handler == handle)
            ::signal(number, SIG_DFL);
    }
    m_notifier.reset();
    writeEnd = -1;
    for (const int end : m_pipe)
        ::close(end);
}

} // namespace moravel
