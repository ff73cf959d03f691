// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <functional>
#include <memory>

namespace moravel {

/// Tells whether another program fills the screen: whether the active window is in full screen, and not one
/// of ours. Looks only when the window system says that something has changed. Main thread only.
class FullScreenWatch
{
public:
    /// Follows the windows of this session: of an X display, of sway, or of KDE's compositor. Null where
    /// the window system tells nobody.
    /// @param self the process whose windows do not count.
    static std::unique_ptr<FullScreenWatch> start(qint64 self = QCoreApplication::applicationPid());

    virtual ~FullScreenWatch() = default;
    Q_DISABLE_COPY_MOVE(FullScreenWatch)

    bool isFullScreen() const { return m_fullScreen; }

    std::function<void()> onChanged;

protected:
    FullScreenWatch() = default;

    void setFullScreen(bool fullScreen)
    {
        if (std::exchange(m_fullScreen, fullScreen) != fullScreen && onChanged)
            onChanged();
    }

private:
    bool m_fullScreen = false;
};

} // namespace moravel
