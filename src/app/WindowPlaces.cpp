// SPDX-License-Identifier: MIT
#include "app/WindowPlaces.h"

#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace moravel {

namespace {

constexpr double RestSeconds = 1;

bool mayHaveMoved(QEvent::Type type)
{
    return type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowStateChange;
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
    : m_preferences(preferences), m_loop(loop)
{ }

void WindowPlaces::follow(QWidget &window, const QString &name)
{
    const QByteArray place = m_preferences.readWindowPlace(name);
    if (!place.isEmpty() && window.restoreGeometry(place)) {
        window.setWindowState(window.windowState() & ~(Qt::WindowFullScreen | Qt::WindowMinimized));
        if (!window.isMaximized())
            bringOntoScreen(window);
    }
    m_windows[&window] = {name, place};
    window.installEventFilter(this);
    connect(&window, &QObject::destroyed, this, [this, &window] { m_windows.erase(&window); });
}

bool WindowPlaces::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Hide && !event->spontaneous())
        save();
    else if (mayHaveMoved(event->type()))
        m_soon = m_loop.after(RestSeconds, [this] { save(); });
    return QObject::eventFilter(watched, event);
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
}

} // namespace moravel
