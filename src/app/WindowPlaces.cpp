// SPDX-License-Identifier: MIT
#include "app/WindowPlaces.h"

#include <QEvent>

namespace moravel {

namespace {

constexpr double RestSeconds = 1;

bool mayHaveMoved(QEvent::Type type)
{
    return type == QEvent::Move || type == QEvent::Resize || type == QEvent::WindowStateChange;
}

} // namespace

WindowPlaces::WindowPlaces(Preferences &preferences, MainLoop &loop)
    : m_preferences(preferences), m_loop(loop)
{ }

void WindowPlaces::follow(QWidget &window, const QString &name)
{
    const QByteArray place = m_preferences.readWindowPlace(name);
    if (!place.isEmpty() && window.restoreGeometry(place))
        window.setWindowState(window.windowState() & ~(Qt::WindowFullScreen | Qt::WindowMinimized));
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
