// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/X11Desktop.h"

#include "platform/linux/desktops/DesktopLog.h"
#include "platform/linux/desktops/FileUrls.h"

namespace moravel {

X11Desktop::X11Desktop(Files &files, const QString &recordPath, std::unique_ptr<RootWatch> root)
    : m_file(files, recordPath)
    , m_record(m_file.read())
    , m_root(std::move(root))
    , m_screens([this] {
        if (m_isOurs)
            repaint();
        if (onScreensChanged)
            onScreensChanged();
    })
{
    m_worker.setMaxThreadCount(1);
    m_worker.setExpiryTimeout(1000);
    m_root->onChanged = [this](const QByteArray &property) { onRootChanged(property); };
    lookWhoseItIs();
    if (!m_root->value(RootPixmapProperty))
        repaint();
}

X11Desktop::~X11Desktop()
{
    m_stop = true;
}

QList<QByteArray> X11Desktop::rootProperties()
{
    return {RootPixmapProperty, OwnPixmapProperty};
}

void X11Desktop::onRootChanged(const QByteArray &property)
{
    if (m_running) // the worker's own change arrives before its result
        return;
    // Another setter. Some paint into the pixmap that is there: the id alone does not tell.
    if (property == RootPixmapProperty)
        m_root->remove(OwnPixmapProperty);
    lookWhoseItIs();
}

void X11Desktop::lookWhoseItIs()
{
    const auto shown = m_root->value(RootPixmapProperty);
    m_isOurs = shown && *shown == m_record.owner && m_root->value(OwnPixmapProperty) == shown;
}

QString X11Desktop::desktopImageUrl(const QString &screen) const
{
    return m_isOurs ? fileUrl(m_record.screens.value(screen).path) : QString();
}

void X11Desktop::setDesktopImageUrl(const QString &url, const QString &screen,
                                    DesktopScaling scaling, Done done)
{
    m_orders[screen] = {pathOfUrl(url), scaling};
    m_waiting.append({screen, std::move(done)});
    start();
}

void X11Desktop::repaint()
{
    for (auto it = m_record.screens.begin(); it != m_record.screens.end(); ++it) {
        if (!m_orders.contains(it.key()) && m_screens.has(it.key()))
            m_orders[it.key()] = {it->path, it->scaling};
    }
    start();
}

void X11Desktop::start()
{
    if (m_running || m_orders.isEmpty())
        return;
    m_running = true;
    // Not at once: the calls for the other screens follow, and all are painted in one go.
    QMetaObject::invokeMethod(
        &m_mainThread, [this] { paint(std::exchange(m_orders, {}), std::exchange(m_waiting, {})); },
        Qt::QueuedConnection);
}

void X11Desktop::paint(const QMap<QString, PaintOrder> &orders, QList<Waiting> waiting)
{
    m_worker.start([this, orders, waiting = std::move(waiting)] {
        const auto result = paintRoot(orders, m_stop);
        QMetaObject::invokeMethod(
            &m_mainThread, [=, this] { finish(orders, waiting, result); }, Qt::QueuedConnection);
    });
}

void X11Desktop::finish(const QMap<QString, PaintOrder> &orders, const QList<Waiting> &waiting,
                        const tl::expected<PaintResult, QString> &result)
{
    if (result && result->pixmap) {
        if (result->previous != m_record.owner) // somebody else's pictures are around ours now
            m_record.screens.clear();
        for (auto it = orders.begin(); it != orders.end(); ++it) {
            if (!result->failed.contains(it.key()))
                m_record.screens[it.key()] = {it->path, it->scaling};
        }
        m_record.owner = result->pixmap;
        m_file.write(m_record);
    }
    m_running = false;
    m_root->refresh();
    lookWhoseItIs();
    for (const Waiting &one : waiting) {
        const QString reason = result ? result->failed.value(one.screen) : result.error();
        if (reason.isEmpty())
            one.done({});
        else
            one.done(tl::unexpected(DesktopError{one.screen, reason}));
    }
    start();
}

} // namespace moravel
