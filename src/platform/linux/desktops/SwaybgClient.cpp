// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/SwaybgClient.h"

#include <QFile>
#include <QProcess>

#include <csignal>

namespace moravel::swaybg {

namespace {

QString modeOf(DesktopScaling scaling)
{
    switch (scaling) {
    case DesktopScaling::Centred:
        return QStringLiteral("center");
    case DesktopScaling::Fit:
        return QStringLiteral("fit");
    case DesktopScaling::Fill:
        return QStringLiteral("fill");
    }
    return {};
}

/// Start of a running process that is a client of ours or about to become it; 0 for any other.
qint64 startOf(qint64 id)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(id));
    if (id <= 1 || !file.open(QIODevice::ReadOnly))
        return 0;
    // "id (name) state parent …": the name may hold anything, the start is field 22.
    const QByteArray line = file.readAll();
    const qsizetype afterName = line.lastIndexOf(')');
    const QByteArrayList fields = line.mid(afterName + 2).split(' ');
    return afterName > 0 && fields.size() > 19 && fields[0] != "Z" ? fields[19].toLongLong() : 0;
}

} // namespace

std::optional<Process> launch(const QString &output, const QString &path, DesktopScaling scaling)
{
    QProcess process;
    process.setProgram(QStringLiteral("swaybg"));
    process.setArguments({QStringLiteral("-o"), output, QStringLiteral("-i"), path,
                          QStringLiteral("-m"), modeOf(scaling), QStringLiteral("-c"),
                          QStringLiteral("#000000")});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    qint64 id = 0;
    if (!process.startDetached(&id))
        return std::nullopt;
    return Process{id, startOf(id)};
}

bool isAlive(const Process &process)
{
    return process.start > 0 && startOf(process.id) == process.start;
}

void end(const Process &process)
{
    if (isAlive(process))
        ::kill(static_cast<pid_t>(process.id), SIGTERM);
}

} // namespace moravel::swaybg
