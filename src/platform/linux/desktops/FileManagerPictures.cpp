// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/FileManagerPictures.h"

#include "platform/linux/desktops/FileStamp.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QDir>
#include <QFileInfo>

namespace moravel {

namespace {

constexpr int CommandMs = 10'000;
constexpr int CheckMs = 100;
constexpr int ChecksPerCommand = 10;
constexpr int MostCommands = 3; ///< The first one after the desktop's start may be ignored.
constexpr size_t MostJobs = 64;

} // namespace

FileManagerPictures::FileManagerPictures(const FileManagerDesktop &desktop,
                                         const QString &configFolder, const QString &copyFolder)
    : m_desktop(desktop)
    , m_screens([this] {
        if (onScreensChanged)
            onScreensChanged();
    })
    , m_settings(settingsPath(desktop, configFolder), [this] { refresh(); })
    , m_copies(desktop.fill ? nullptr : std::make_unique<ScaledCopies>(copyFolder, false, true))
{
    // Started again, it lays the picture out as its settings say, where its command leaves no trace.
    if (m_desktop.service) {
        m_service.setConnection(QDBusConnection::sessionBus());
        m_service.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
        m_service.addWatchedService(QLatin1String(m_desktop.service));
        connect(&m_service, &QDBusServiceWatcher::serviceRegistered, this, [this] {
            if (onScreensChanged)
                onScreensChanged();
        });
    }
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(CommandMs);
    m_check.setSingleShot(true);
    m_check.setInterval(CheckMs);
    connect(&m_process, &QProcess::finished, this, &FileManagerPictures::onEnded);
    connect(
        &m_process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                finish(QStringLiteral("The desktop's file manager cannot be started."));
        },
        Qt::QueuedConnection);
    connect(&m_deadline, &QTimer::timeout, &m_process, &QProcess::kill);
    connect(&m_check, &QTimer::timeout, this, &FileManagerPictures::check);
    refresh();
}

FileManagerPictures::~FileManagerPictures()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished(1000);
}

QString FileManagerPictures::desktopImageUrl(const QString &) const
{
    return m_url;
}

void FileManagerPictures::setDesktopImageUrl(
    const QString &url, const QString &, DesktopScaling scaling,
    std::function<void(tl::expected<void, DesktopError>)> done)
{
    const QString path = pathOfUrl(url);
    const char *refusal = nullptr;
    if (!QFileInfo(path).isFile())
        refusal = "The picture is not a file.";
    else if (!canKeep(m_desktop, path))
        refusal = "The desktop's settings cannot hold this file name.";
    else if (!m_reading.slideshowFolder.isEmpty())
        refusal = "The desktop's own slideshow is on, and only its settings turn it off.";
    add({refusal ? QString() : path, QString::fromLatin1(refusal), scaling, std::move(done)});
}

void FileManagerPictures::add(Job job)
{
    if (m_jobs.size() >= MostJobs) {
        job.path.clear();
        job.refusal = QStringLiteral("The desktop's file manager does not answer.");
    }
    m_jobs.push_back(std::move(job));
    if (m_jobs.size() == 1)
        QMetaObject::invokeMethod(
            this, [this] { startNext(); }, Qt::QueuedConnection);
}

void FileManagerPictures::startNext()
{
    if (m_isBusy || m_jobs.empty())
        return;
    m_isBusy = true;
    Job &job = m_jobs.front();
    if (job.path.isEmpty())
        return finish(job.refusal);
    if (!m_copies || job.scaling != DesktopScaling::Fill)
        return hand(job.path);
    QList<QSize> main;
    for (const DesktopScreen &screen : screens()) {
        if (screen.isMain)
            main.append(screen.pixels);
    }
    m_copies->prepare(job.path, main, job.scaling, [this](const QString &file) { hand(file); });
}

void FileManagerPictures::hand(const QString &file)
{
    const QByteArray stamp = fileStamp(file);
    m_jobs.front().path = spelling(file);
    m_stamp = stamp;
    startCommand();
}

void FileManagerPictures::startCommand()
{
    const Job &job = m_jobs.front();
    m_process.start(QLatin1String(m_desktop.program),
                    setArguments(m_desktop, job.path, job.scaling));
    m_deadline.start();
}

void FileManagerPictures::onEnded()
{
    m_deadline.stop();
    check();
}

void FileManagerPictures::check()
{
    refresh();
    Job &job = m_jobs.front();
    ++job.checks;
    if (m_reading.image == job.path)
        return finish({});
    if (job.checks % ChecksPerCommand != 0)
        return m_check.start();
    if (job.checks >= ChecksPerCommand * MostCommands)
        return finish(QStringLiteral("The desktop did not take the picture."));
    startCommand();
}

void FileManagerPictures::finish(QString failure)
{
    m_deadline.stop();
    const Job job = std::move(m_jobs.front());
    m_jobs.pop_front();
    m_isBusy = false;
    QMetaObject::invokeMethod(
        this, [this] { startNext(); }, Qt::QueuedConnection);
    if (failure.isEmpty())
        job.done({});
    else
        job.done(tl::make_unexpected(DesktopError{{}, failure}));
}

void FileManagerPictures::refresh()
{
    m_reading = readSettings(m_desktop, m_settings.path());
    const QString image = QDir::cleanPath(m_reading.image);
    m_url = fileUrl(!m_reading.slideshowFolder.isEmpty() ? m_reading.slideshowFolder
                        : m_copies                       ? m_copies->original(image)
                                                         : image);
}

/// The path, spelled otherwise than before when the file is another one than it was: the desktop does
/// not look at the same text twice.
QString FileManagerPictures::spelling(const QString &path) const
{
    const QString shown = m_reading.image;
    if (m_desktop.repaints || QDir::cleanPath(shown) != path)
        return path;
    if (m_stamp == fileStamp(path))
        return shown;
    return shown == path ? QLatin1String("/.") + path : path;
}

} // namespace moravel
