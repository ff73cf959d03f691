// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>

namespace moravel::bench {

/// A value of /proc/self/status ("VmRSS", "VmHWM") in MB; 0 when it cannot be read.
inline double memoryMb(const char *field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(field))
            return line.mid(line.indexOf(':') + 1).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

/// Starts VmHWM anew: what was needed before does not count.
inline void forgetPeak()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

} // namespace moravel::bench
