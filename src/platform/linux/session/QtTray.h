// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Tray.h"
#include "platform/linux/session/EmbeddingTray.h"
#include "platform/linux/session/TrayHosts.h"

#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>

namespace moravel {

/// The icon in the tray: a StatusNotifierItem where the desktop's panel takes those, else an embedded
/// window. Shown as soon as there is a tray, also one that comes later or comes back.
class QtTray : public QObject, public Tray
{
    Q_OBJECT

public:
    QtTray(const QDBusConnection &sessionBus, MainLoop &loop);

    void setImage(const QImage &image) override;

    bool isShown() const override { return m_icon && m_icon->isVisible(); }

    /// The menu as the tray shows it.
    QMenu &menu() { return m_menu; }

private:
    void show(TrayKind kind);
    void showImage();
    void fillMenu();
    void add(const TrayMenuItem &item);

    TrayKind m_kind = TrayKind::Embedded;
    QIcon m_image;
    QMenu m_menu;
    QList<TrayMenuItem> m_items; ///< What the menu holds.
    std::unique_ptr<QSystemTrayIcon>
        m_icon; ///< Null until there is a tray; before the menu it shows.
    TrayHosts m_hosts;
    EmbeddingTray m_embedding;
};

} // namespace moravel
