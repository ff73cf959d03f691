// SPDX-License-Identifier: MIT
#include "platform/linux/session/LinuxWorkspace.h"

#include "platform/Texts.h"
#include "platform/linux/session/Log.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>

#include <unistd.h>
#include <utility>

// The linker drops resources of a static library that no one names.
static void initResources()
{
    Q_INIT_RESOURCE(platform_session);
}

namespace moravel {

namespace {

constexpr qsizetype LongestMessage = 2000; // bytes of the script's message
constexpr int FileManagerTimeout = 10'000; // ms; it may have to be started first

void openFolderOf(const QString &path)
{
    const QUrl folder = QUrl::fromLocalFile(QFileInfo(path).absolutePath());
    if (!QDesktopServices::openUrl(folder))
        qCInfo(lcSession) << "no program opens folders:" << folder;
}

} // namespace

LinuxWorkspace::LinuxWorkspace(const QDBusConnection &sessionBus, QString script)
    : m_bus(sessionBus), m_script(std::move(script))
{
    initResources();
}

LinuxWorkspace::~LinuxWorkspace()
{
    // Ends the script; what it started goes on.
    if (m_process)
        m_process->disconnect(this);
}

void LinuxWorkspace::openDesktopSettings(std::function<void(const QString &)> done)
{
    m_done.append(std::move(done));
    if (m_done.size() == 1)
        runScript();
}

void LinuxWorkspace::runScript()
{
    QFile file(m_script);
    if (!file.open(QIODevice::ReadOnly)) {
        const QString error = file.errorString();
        QMetaObject::invokeMethod(
            this, [this, error] { scriptEnded(error); }, Qt::QueuedConnection);
        return;
    }
    m_process = new QProcess(this);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setStandardOutputFile(QProcess::nullDevice());
    // A session of its own: what it starts must not end with the terminal that we run in.
    m_process->setChildProcessModifier([] { ::setsid(); });
    connect(m_process, &QProcess::finished, this, [this] { scriptEnded(errorOf(*m_process)); });
    connect(
        m_process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                scriptEnded(m_process->errorString());
        },
        Qt::QueuedConnection);
    m_process->start(QStringLiteral("/bin/sh"),
                     {QStringLiteral("-c"), QString::fromUtf8(file.readAll())});
}

QString LinuxWorkspace::errorOf(QProcess &process) const
{
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return {};
    const QString message =
        QString::fromUtf8(process.readAllStandardError().left(LongestMessage)).trimmed();
    if (!message.isEmpty())
        return message;
    return process.exitStatus() == QProcess::CrashExit
        ? process.errorString()
        : Texts::tr("The script ended with error %1.").arg(process.exitCode());
}

void LinuxWorkspace::scriptEnded(const QString &error)
{
    if (m_process)
        std::exchange(m_process, nullptr)->deleteLater();
    if (!error.isEmpty())
        qCInfo(lcSession) << "desktop settings:" << error;
    const auto answered = std::exchange(m_done, {});
    for (const auto &done : answered) {
        if (done)
            done(error);
    }
}

void LinuxWorkspace::revealInFileManager(const QString &path)
{
    QDBusMessage show = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"),
        QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    const QString url = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    show << QStringList{url} << QString(); // no start-up notification
    auto *call = new QDBusPendingCallWatcher(m_bus.asyncCall(show, FileManagerTimeout), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [call, path] {
        call->deleteLater();
        if (!call->isError())
            return;
        qCInfo(lcSession).noquote() << "file manager:" << call->error().message();
        openFolderOf(path);
    });
}

} // namespace moravel
