// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>

#include <unistd.h>

namespace moravel::bench {

/// Milliseconds of all processors together that the host of this virtual machine gave to others since the start
/// (/proc/stat, "steal"); 0 on a machine of its own. What ran meanwhile looks slow without being so.
inline double stolenMilliseconds()
{
    // After "cpu", which two spaces follow: user, nice, system, idle, iowait, irq, softirq.
    constexpr int Steal = 9;
    QFile stat(QStringLiteral("/proc/stat"));
    if (!stat.open(QIODevice::ReadOnly))
        return 0;
    const auto ticks = stat.readLine().split(' ').value(Steal).toDouble();
    return ticks * 1000 / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

} // namespace moravel::bench
