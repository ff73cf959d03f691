// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/HyprlandPictures.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileStamp.h"
#include "platform/linux/desktops/FileUrls.h"
#include "platform/linux/desktops/HyprpaperCommands.h"
#include "platform/linux/desktops/UnixQuery.h"

#include <QFileInfo>
#include <QProcess>

#include <utility>

namespace moravel {

namespace {

constexpr int QuietMs = 200;

} // namespace

HyprlandPictures::HyprlandPictures(QString socket)
    : m_socket(std::move(socket)), m_screens([this] {
        askShown([this] {
            if (onScreensChanged)
                onScreensChanged();
        });
    })
{
    askShown({});
}

QString HyprlandPictures::desktopImageUrl(const QString &screen) const
{
    return fileUrl(m_shown.value(screen));
}

void HyprlandPictures::askShown(const std::function<void()> &then)
{
    const auto answered = [this, then](const std::optional<QByteArray> &answer) {
        if (answer && hyprpaper::isText(*answer))
            m_shown = hyprpaper::shownPaths(*answer);
        if (then)
            then();
    };
    queryUnixSocket(this, m_socket, "listactive", QuietMs, answered);
}

void HyprlandPictures::setDesktopImageUrl(
    const QString &url, const QString &screen, DesktopScaling scaling,
    std::function<void(tl::expected<void, DesktopError>)> done)
{
    const QString path = pathOfUrl(url);
    const QByteArray stamp = fileStamp(path);
    Job job{path, screen, scaling, {}, std::move(done)};
    QString error;
    if (screen.contains(u',')) // which ends the name; unknown ones hyprpaper refuses
        error = QStringLiteral("There is no such screen.");
    else if (!QFileInfo(path).isFile())
        error = QStringLiteral("There is no such file.");
    else if (!hyprpaper::canSay(path))
        error = QStringLiteral("hyprpaper cannot take a file of this name.");
    if (!error.isEmpty()) {
        QMetaObject::invokeMethod(
            this, [this, job, error] { finish(job, error); }, Qt::QueuedConnection);
        return;
    }
    if (scaling == DesktopScaling::Centred && !std::exchange(m_toldScaling, true))
        qCInfo(desktopsLog) << "Hyprland has no centred pictures; they are fitted to the screen";
    const bool anew = m_stamps.contains(path) && m_stamps.value(path) != stamp;
    m_stamps = {{path, stamp}};
    job.requests = hyprpaper::requests(path, screen, scaling, anew);
    sendNext(std::move(job));
}

void HyprlandPictures::sendNext(Job job)
{
    if (job.requests.isEmpty()) {
        askShown([this, job] {
            const bool taken = m_shown.value(job.screen) == job.path;
            finish(job, taken ? QString() : QStringLiteral("hyprpaper does not show the picture."));
        });
        return;
    }
    const QByteArray request = job.requests.takeFirst();
    const auto answered = [this, job, request](const std::optional<QByteArray> &answer) {
        if (!answer || !hyprpaper::isText(*answer))
            return runHyprctl(job);
        const bool mayFail = request.startsWith("unload");
        if (mayFail || answer->trimmed() == "ok")
            return sendNext(job);
        finish(job, QStringLiteral("hyprpaper: %1").arg(QString::fromUtf8(answer->left(200))));
    };
    queryUnixSocket(this, m_socket, request, QuietMs, answered);
}

void HyprlandPictures::runHyprctl(const Job &job)
{
    const auto arguments = hyprpaper::arguments(job.path, job.screen, job.scaling);
    if (!arguments)
        return finish(job, QStringLiteral("hyprpaper cannot take a file of this name."));
    auto *process = new QProcess(this);
    process->setStandardInputFile(QProcess::nullDevice());
    const auto ended = [this, process, job](bool succeeded) {
        process->deleteLater();
        const QString said =
            QString::fromUtf8(process->readAllStandardOutput().left(200)).trimmed();
        const bool taken = succeeded && said == u"ok";
        if (taken)
            m_shown[job.screen] = job.path;
        finish(job, taken ? QString() : QStringLiteral("hyprpaper does not answer. %1").arg(said));
    };
    connect(process, &QProcess::finished, this, [ended](int code, QProcess::ExitStatus status) {
        ended(code == 0 && status == QProcess::NormalExit);
    });
    connect(
        process, &QProcess::errorOccurred, this,
        [ended](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                ended(false);
        },
        Qt::QueuedConnection);
    process->start(QStringLiteral("hyprctl"), *arguments);
}

void HyprlandPictures::finish(const Job &job, const QString &error)
{
    if (error.isEmpty())
        job.done({});
    else
        job.done(tl::unexpected(DesktopError{job.screen, error}));
}

} // namespace moravel
