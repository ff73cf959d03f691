// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/WlrootsDesktop.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileUrls.h"

#include <QFileInfo>
#include <QTimer>

namespace moravel {

namespace {

constexpr int SettledMs =
    300; ///< A client that cannot read its picture or output has ended by then.
constexpr int CoveredMs = 1000; ///< Its successor has painted by then; ending it shows no gap.

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
    launch(screen, {pathOfUrl(url), scaling}, std::move(done));
}

void WlrootsDesktop::restore()
{
    for (auto it = m_record.screens.begin(); it != m_record.screens.end(); ++it) {
        if (m_screens.has(it.key()) && !swaybg::isAlive({it->owner, it->ownerStart}))
            launch(it.key(), *it, [](const tl::expected<void, DesktopError> &result) {
                if (!result)
                    qCInfo(desktopsLog) << result.error().screen << result.error().description;
            });
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
