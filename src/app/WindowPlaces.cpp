// SPDX-License-Identifier: MIT
#include "app/WindowPlaces.h"

#include <QCoreApplication>
#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace moravel {

namespace {

constexpr double RestSeconds = 1;

bool isChange(QEvent::Type type) // of its place, of being open, or of what it shows
{
    return type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowStateChange
        || type == QEvent::Show || type == QEvent::WindowTitleChange;
}

constexpr QMargins Frame(8, 32, 8, 8); ///< Points that a window's frame takes at most.

/// Brings a window wholly onto its screen: it may have lain on one that is not there any more.
void bringOntoScreen(QWidget &window)
{
    const QRect screen = window.screen()->availableGeometry();
    QRect place = window.geometry();
    if (screen.contains(place))
        return;
    const QRect room = screen.marginsRemoved(Frame);
    place.setSize(place.size().boundedTo(room.size()));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveTopLeft({std::max(place.left(), room.left()), std::max(place.top(), room.top())});
    window.setGeometry(place);
}

} // namespace

WindowPlaces::WindowPlaces(Preferences &preferences, MainLoop &loop)
    : m_preferences(preferences), m_loop(loop), m_kept(preferences.readOpenWindows())
{
    QCoreApplication::instance()->installEventFilter(
        this); // it sees the events of all windows, too
}

void WindowPlaces::follow(QWidget &window, const QString &name)
{
    const QByteArray place = m_preferences.readWindowPlace(name);
    if (!place.isEmpty() && window.restoreGeometry(place)) {
        window.setWindowState(window.windowState() & ~(Qt::WindowFullScreen | Qt::WindowMinimized));
        if (!window.isMaximized())
            bringOntoScreen(window);
    }
    m_windows[&window] = {name, place};
    if (!m_main)
        m_main = &window;
    connect(&window, &QObject::destroyed, this, [this, &window] { m_windows.erase(&window); });
}

bool WindowPlaces::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOfWindow =
        watched->isWidgetType() && m_windows.count(static_cast<QWidget *>(watched)) > 0;
    if (event->type() == QEvent::Quit && !m_isEnding) {
        save(); // after this the windows are closed
        m_isEnding = true;
    } else if (isOfWindow && event->type() == QEvent::Hide && !event->spontaneous()) {
        save();
    } else if (isOfWindow && isChange(event->type())) {
        m_soon = m_loop.after(RestSeconds, [this] { save(); });
        openIfSeen();
    }
    return QObject::eventFilter(watched, event);
}

void WindowPlaces::reopen(Opens open)
{
    m_open = std::move(open);
    openIfSeen();
}

void WindowPlaces::openIfSeen()
{
    if (!m_open || !m_main || !m_main->isVisible() || m_main->isMinimized())
        return;
    m_openSoon = m_loop.after(0, [this] {
        const Opens open = std::exchange(m_open, {});
        const QStringList windows = std::exchange(m_kept, {});
        m_isReopened = true;
        m_preferences.saveOpenWindows({}); // one that ends the program must not do so at each start
        for (const QString &window : windows)
            open(window.section(u' ', 0, 0), window.section(u' ', 1));
    });
}

void WindowPlaces::endForGood()
{
    if (m_isEnding)
        return;
    save();
    m_isEnding = true;
    m_preferences.saveOpenWindows({});
}

void WindowPlaces::saveOpen()
{
    if (m_isEnding || !m_isReopened)
        return;
    QStringList now;
    for (const auto &[window, followed] : m_windows) {
        if (window != m_main && window->isVisible())
            now.append((followed.name + u' ' + window->windowFilePath()).trimmed());
    }
    if (now == m_kept)
        return;
    m_kept = now;
    m_preferences.saveOpenWindows(now);
}

void WindowPlaces::save()
{
    m_soon.reset();
    for (auto &[window, followed] : m_windows) {
        const QByteArray now = window->saveGeometry();
        // A window that was never shown has not been put anywhere.
        if (now == followed.kept || !window->testAttribute(Qt::WA_WState_ExplicitShowHide))
            continue;
        followed.kept = now;
        m_preferences.saveWindowPlace(followed.name, now);
    }
    saveOpen();
}

} // namespace moravel
