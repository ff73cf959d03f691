// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/WlrootsDesktop.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QFileInfo>
#include <QTimer>

#include <algorithm>

namespace moravel {

namespace {

constexpr int SettledMs =
    300; ///< A client that cannot read its picture or output has ended by then.
constexpr int CoveredMs = 1000; ///< Its successor has painted by then; ending it shows no gap.
constexpr int AgainMs = 500; ///< Before a client that ended is started again; doubled each time,
constexpr int LongestAgainMs = 60'000; ///< up to this. One that ran for so long starts afresh.

void logFailure(const tl::expected<void, DesktopError> &result)
{
    if (!result)
        qCInfo(desktopsLog) << result.error().screen << result.error().description;
}

} // namespace

WlrootsDesktop::WlrootsDesktop(Files &files, const QString &recordPath)
    : m_file(files, recordPath), m_record(m_file.read()), m_screens([this] {
        restore();
        if (onScreensChanged)
            onScreensChanged();
    })
{
    restore();
}

WlrootsDesktop::~WlrootsDesktop()
{
    for (const swaybg::Process &process : m_ending + m_starting)
        swaybg::end(process);
}

QString WlrootsDesktop::desktopImageUrl(const QString &screen) const
{
    return fileUrl(m_record.screens.value(screen).path);
}

void WlrootsDesktop::setDesktopImageUrl(const QString &url, const QString &screen,
                                        DesktopScaling scaling, Done done)
{
    if (const auto client = m_clients.value(screen))
        client->ends = 0;
    launch(screen, {pathOfUrl(url), scaling}, std::move(done));
}

void WlrootsDesktop::restore()
{
    for (auto it = m_record.screens.begin(); it != m_record.screens.end(); ++it) {
        if (!m_screens.has(it.key()))
            continue;
        if (swaybg::isAlive(clientOf(it.key())))
            follow(it.key());
        else
            launch(it.key(), *it, logFailure);
    }
}

swaybg::Process WlrootsDesktop::clientOf(const QString &screen) const
{
    const DesktopRecordEntry entry = m_record.screens.value(screen);
    return {entry.owner, entry.ownerStart};
}

QList<swaybg::Process> WlrootsDesktop::ours() const
{
    QList<swaybg::Process> all = m_starting + m_ending;
    for (const QString &screen : m_record.screens.keys())
        all.append(clientOf(screen));
    return all;
}

void WlrootsDesktop::follow(const QString &screen)
{
    auto &client = m_clients[screen];
    if (!client)
        client = std::make_shared<Client>();
    const swaybg::Process process = clientOf(screen);
    if (client->watch && client->watch->process() == process)
        return;
    client->running.start();
    client->watch =
        std::make_unique<swaybg::EndWatch>(process, [this, screen] { onEnded(screen); });
    uncover(screen);
}

void WlrootsDesktop::onEnded(const QString &screen)
{
    Client &client = *m_clients[screen];
    if (client.running.hasExpired(LongestAgainMs))
        client.ends = 0;
    const int wait = std::min(AgainMs << std::min(client.ends++, 10), LongestAgainMs);
    QTimer::singleShot(wait, &m_timers, [this, screen, ended = client.watch->process()] {
        startAgain(screen, ended);
    });
}

void WlrootsDesktop::startAgain(const QString &screen, const swaybg::Process &ended)
{
    if (clientOf(screen) != ended || !m_screens.has(screen))
        return; // replaced meanwhile, or to be restored with its screen
    const QList<swaybg::Process> rivals = swaybg::rivals(screen, ours());
    const auto isNewer = [&](const swaybg::Process &other) { return other.start > ended.start; };
    if (std::any_of(rivals.begin(), rivals.end(), isNewer)) {
        qCInfo(desktopsLog) << "another background has taken our place on" << screen;
        m_record.screens.remove(screen);
        m_file.write(m_record);
        return;
    }
    qCInfo(desktopsLog) << "swaybg has ended; starting it again on" << screen;
    launch(screen, m_record.screens.value(screen), logFailure);
}

void WlrootsDesktop::uncover(const QString &screen)
{
    const QList<swaybg::Process> rivals = swaybg::rivals(screen, ours());
    const QList<DesktopScreen> all = screens();
    for (const swaybg::Process &rival : rivals) {
        const bool spare = std::all_of(all.begin(), all.end(), [&](const DesktopScreen &one) {
            return swaybg::isAlive(clientOf(one.id))
                || !swaybg::rivals(one.id, ours()).contains(rival);
        });
        if (!std::exchange(m_toldOfRival, true))
            qCInfo(desktopsLog).nospace()
                << "another swaybg, process " << rival.id << ", can cover the picture of " << screen
                << ": the compositor's configuration may name a background (bg)"
                << (spare ? "; it is ended" : "");
        if (spare)
            endLater(rival);
    }
}

void WlrootsDesktop::launch(const QString &screen, const DesktopRecordEntry &entry, Done done)
{
    QString error;
    std::optional<swaybg::Process> process;
    if (!m_screens.has(screen))
        error = QStringLiteral("There is no such screen.");
    else if (!QFileInfo(entry.path).isFile())
        error = QStringLiteral("There is no such file.");
    else if (process = swaybg::launch(screen, entry.path, entry.scaling); !process)
        error = QStringLiteral("The program swaybg cannot be started.");
    if (!process) {
        QTimer::singleShot(0, &m_timers, [=] {
            done(tl::unexpected(DesktopError{screen, error}));
        });
        return;
    }
    m_starting.append(*process);
    DesktopRecordEntry started = entry;
    started.owner = process->id;
    started.ownerStart = process->start;
    QTimer::singleShot(SettledMs, &m_timers, [this, screen, started, done = std::move(done)] {
        adopt(screen, started, done);
    });
}

void WlrootsDesktop::adopt(const QString &screen, const DesktopRecordEntry &entry, const Done &done)
{
    const swaybg::Process process{entry.owner, entry.ownerStart};
    m_starting.removeOne(process);
    if (!swaybg::isAlive(process)) {
        done(tl::unexpected(
            DesktopError{screen, QStringLiteral("swaybg cannot show the picture.")}));
        return;
    }
    const DesktopRecordEntry old = m_record.screens.value(screen);
    m_record.screens[screen] = entry;
    m_file.write(m_record);
    endLater({old.owner, old.ownerStart});
    follow(screen);
    done({});
}

void WlrootsDesktop::endLater(const swaybg::Process &process)
{
    m_ending.append(process);
    QTimer::singleShot(CoveredMs, &m_timers, [this, process] {
        m_ending.removeOne(process);
        swaybg::end(process);
    });
}

} // namespace moravel
