// SPDX-License-Identifier: MIT
#pragma once

#include "base/Preferences.h"
#include "base/QuietRules.h"
#include "mainwindow/MainWindow.h"
#include "platform/Platform.h"

#include <QAction>
#include <QPointer>

namespace moravel {

/// What is to happen when it may.
struct QuietPorts
{
    /// Fetches, once, what had to wait.
    std::function<void()> catchUpDownloads;
    /// Asks again where there was no connection before.
    std::function<void()> connectionIsBack;
    /// Makes the change of the desktop that had to wait.
    std::function<void()> catchUpRotation;
};

/// Keeps the program quiet where it would disturb or cost, as the surroundings tell and the user wants.
class QuietSide : public QObject
{
    Q_OBJECT

public:
    /// All of @p platform and @p preferences must outlive this object.
    QuietSide(const Platform &platform, Preferences &preferences, QuietPorts ports);
    ~QuietSide() override;

    /// Adds the user's switch to the File menu.
    void attachWindow(MainWindow &window);

    QString whyNoDownload() const { return waitingDownloadText(m_verdict.download); }

    QString whyNoRotation() const { return waitingRotationText(m_verdict.rotation); }

private:
    void look();
    void toggle();
    void catchUp();

    Platform m_platform;
    Preferences &m_preferences;
    QuietPorts m_ports;
    QuietVerdict m_verdict;
    bool m_wasOffline = false; ///< Since the last time that something was made up for.
    QPointer<QAction> m_item;
    DelayedCallHandle m_soon;
};

} // namespace moravel
