// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Alerts.h"

#include <QList>
#include <QPointer>

class QMessageBox;
class QWidget;

namespace moravel {

/// Shows alerts as message boxes: on the main window once there is one, else on their own.
///
/// Title and text are shown as they are, never as markup. Very long texts are cut, and at most 20
/// alerts stand open at a time; further ones are only logged.
class QtAlerts : public Alerts
{
public:
    QtAlerts();
    ~QtAlerts() override;

    /// Tells the window that alerts block while they are open; null for none. While it is hidden,
    /// alerts stand on their own.
    void setParentWindow(QWidget *window);

    void alert(const QString &title, const QString &text) override;

private:
    bool isOpen(const QString &title, const QString &text);

    QPointer<QWidget> m_window;
    QList<QPointer<QMessageBox>> m_open;
};

} // namespace moravel
