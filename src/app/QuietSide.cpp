// SPDX-License-Identifier: MIT
#include "app/QuietSide.h"

#include "mainwindow/CheckItem.h"

#include <QMenu>

namespace moravel {

namespace {

// The next film may begin at once, and a new connection needs a moment for its names.
constexpr double SettleSeconds = 3;

} // namespace

QuietSide::QuietSide(const Platform &platform, Preferences &preferences, QuietPorts ports)
    : m_platform(platform), m_preferences(preferences), m_ports(std::move(ports))
{
    if (!m_platform.surroundings)
        return;
    m_platform.surroundings->onChanged = [this] { look(); };
    look();
}

QuietSide::~QuietSide()
{
    if (m_platform.surroundings)
        m_platform.surroundings->onChanged = {};
}

void QuietSide::look()
{
    const SurroundingsState state = m_platform.surroundings->state();
    m_verdict = quietVerdict(state, m_preferences.readQuiet());
    m_wasOffline = m_wasOffline || state.offline;
    m_soon = m_platform.loop.after(SettleSeconds, [this] { catchUp(); });
}

void QuietSide::catchUp()
{
    m_soon.reset();
    if (m_verdict.mayRotate())
        m_ports.catchUpRotation();
    if (!m_verdict.mayDownload())
        return;
    m_ports.catchUpDownloads();
    if (std::exchange(m_wasOffline, false))
        m_ports.connectionIsBack();
}

void QuietSide::attachWindow(MainWindow &window)
{
    if (!m_platform.surroundings)
        return;
    QAction *item = makeCheckItem(tr("Stay Quiet &When Needed"), &window, [this] { toggle(); });
    item->setObjectName(QStringLiteral("quietMenuItem"));
    item->setToolTip(
        tr("On a low or saved battery, on a metered connection, while another program "
           "fills the screen and while it is locked, nothing is fetched and the desktop "
           "stays."));
    item->setChecked(m_preferences.readQuiet());
    m_item = item;
    window.fileMenu().setToolTipsVisible(true);
    window.addFileItem(item);
}

void QuietSide::toggle()
{
    m_preferences.saveQuiet(!m_preferences.readQuiet());
    m_item->setChecked(m_preferences.readQuiet());
    look();
}

} // namespace moravel
