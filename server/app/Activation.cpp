// SPDX-License-Identifier: MIT
#include "server/app/Activation.h"

#include <QtGlobal>

#include <unistd.h>

namespace moravel::server {

int takeActivatedSocket()
{
    constexpr int first = 3; // After standard input, output and error.
    const bool ours = qEnvironmentVariableIntValue("LISTEN_PID") == ::getpid();
    const int count = qEnvironmentVariableIntValue("LISTEN_FDS");
    // Not for programs that we might start.
    qunsetenv("LISTEN_PID");
    qunsetenv("LISTEN_FDS");
    qunsetenv("LISTEN_FDNAMES");
    return ours && count >= 1 ? first : -1;
}

} // namespace moravel::server
