// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/SwaybgClient.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <csignal>
#include <sys/syscall.h>
#include <unistd.h>

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

QByteArray processFile(const QString &id, const char *name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(id, QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Without "-o" a client draws on all outputs, and so it does with "*".
bool drawsOn(const QByteArray &output, const QByteArrayList &arguments)
{
    bool named = false;
    for (qsizetype i = 0; i + 1 < arguments.size(); ++i) {
        if (arguments[i] != "-o" && arguments[i] != "--output")
            continue;
        named = true;
        if (arguments[i + 1] == output || arguments[i + 1] == "*")
            return true;
    }
    return !named;
}

bool isOfThisSession(const QString &id)
{
    const QByteArrayList theirs = processFile(id, "environ").split('\0');
    for (const char *name : {"XDG_RUNTIME_DIR", "WAYLAND_DISPLAY"}) {
        if (!theirs.contains(QByteArray(name) + '=' + qgetenv(name)))
            return false;
    }
    return true;
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

QList<Process> rivals(const QString &output, const QList<Process> &ours)
{
    QList<Process> found;
    for (const QString &id : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        if (!id[0].isDigit() || processFile(id, "comm") != "swaybg\n")
            continue;
        const Process process{id.toLongLong(), startOf(id.toLongLong())};
        if (!ours.contains(process) && isAlive(process) && isOfThisSession(id)
            && drawsOn(output.toUtf8(), processFile(id, "cmdline").split('\0')))
            found.append(process);
    }
    return found;
}

EndWatch::EndWatch(const Process &process, std::function<void()> ended)
    : m_process(process), m_handle(int(::syscall(SYS_pidfd_open, process.id, 0)))
{
    if (m_handle < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_handle, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this, ended = std::move(ended)] {
                         m_notifier->setEnabled(false);
                         ended();
                     });
}

EndWatch::~EndWatch()
{
    m_notifier.reset();
    if (m_handle >= 0)
        ::close(m_handle);
}

} // namespace moravel::swaybg
