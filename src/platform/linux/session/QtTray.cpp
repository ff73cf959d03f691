// SPDX-License-Identifier: MIT
#include "platform/linux/session/QtTray.h"

#include "platform/linux/session/Log.h"

#include <QAction>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

namespace moravel {

namespace {

// Pixels. What trays ask for; the largest is for screens of double density.
constexpr int Sizes[] = {16, 22, 24, 32, 48, 64, 128};

// Trays stretch what is not square.
QIcon squareIcon(const QImage &image)
{
    QIcon icon;
    for (const int size : Sizes) {
        const QImage scaled =
            image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        QPixmap square(size, size);
        square.fill(Qt::transparent);
        QPainter painter(&square);
        painter.drawImage((size - scaled.width()) / 2, (size - scaled.height()) / 2, scaled);
        painter.end();
        icon.addPixmap(square);
    }
    return icon;
}

} // namespace

QtTray::QtTray(const QDBusConnection &sessionBus, MainLoop &loop)
    : m_hosts(sessionBus, loop), m_embedding([this] { m_hosts.embeddingTrayIsThere(); })
{
    m_menu.setObjectName(QStringLiteral("trayMenu"));
    connect(&m_menu, &QMenu::aboutToShow, this, &QtTray::fillMenu);
    connect(&m_hosts, &TrayHosts::found, this, &QtTray::show);
    if (m_embedding.isThere())
        m_hosts.embeddingTrayIsThere();
}

void QtTray::setImage(const QImage &image)
{
    QImage plain = image;
    plain.setDevicePixelRatio(1);
    m_image = plain.isNull() ? QIcon() : squareIcon(plain);
    if (!m_icon)
        return;
    showImage();
    // The picture has changed, and so have the lines. Some panels fetch them before the menu opens.
    if (!m_menu.isVisible())
        fillMenu();
}

void QtTray::show(TrayKind kind)
{
    qCDebug(lcSession) << "tray:" << (kind == TrayKind::StatusNotifier ? "panel" : "embedded");
    m_kind = kind;
    fillMenu();
    m_icon = std::make_unique<QSystemTrayIcon>();
    m_icon->setContextMenu(&m_menu);
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                if (reason == QSystemTrayIcon::Trigger && onActivated)
                    onActivated();
            });
    showImage();
}

// Until there is an image, the application's own icon stands in; without one the tray stays empty.
void QtTray::showImage()
{
    const QIcon icon = m_image.isNull() ? QGuiApplication::windowIcon() : m_image;
    m_icon->setIcon(icon);
    m_icon->setVisible(!icon.isNull());
}

void QtTray::fillMenu()
{
    const QList<TrayMenuItem> items = onMenuNeeded ? onMenuNeeded() : QList<TrayMenuItem>();
    if (items == m_items)
        return; // panels fetch the whole menu anew after each change
    m_items = items;
    m_menu.clear();
    for (const TrayMenuItem &item : items)
        add(item);
}

void QtTray::add(const TrayMenuItem &item)
{
    if (item.title.isEmpty()) {
        m_menu.addSeparator();
        return;
    }
    QAction *action = m_menu.addAction(trayLabel(item.title, m_kind));
    action->setObjectName(item.command);
    action->setEnabled(item.enabled);
    connect(action, &QAction::triggered, this, [this, command = item.command] {
        if (onCommand && !command.isEmpty())
            onCommand(command);
    });
}

} // namespace moravel
