// SPDX-License-Identifier: MIT
#pragma once

#include "base/Preferences.h"
#include "platform/MainLoop.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <map>

namespace moravel {

/// Remembers where the user puts the windows, and puts them there again, as far as there are screens.
/// A window in full screen comes back as it was before. Also remembers which were open, as long as the user
/// does not end the program: a session that ends, with or without a word, does not close them for good.
class WindowPlaces : public QObject
{
    Q_OBJECT

public:
    WindowPlaces(Preferences &preferences, MainLoop &loop);

    /// Opens a window again with the file that it showed, if any.
    using Opens = std::function<void(const QString &name, const QString &file)>;

    /// Puts @p window, which was not shown yet, into its last place and follows it by that name, which has no
    /// spaces. The first one is the main window.
    void follow(QWidget &window, const QString &name);

    /// Opens the others that were open, as soon as the main window is there to be seen.
    void reopen(Opens open);

    /// The user ends the program: the next start opens the main window only.
    void endForGood();

    /// Keeps what has changed, at once. Otherwise it is kept when the windows have come to rest, so that
    /// a session that ends without a word loses nothing.
    void save();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openIfSeen();
    void saveOpen();

    struct Followed
    {
        QString name;
        QByteArray kept;
    };

    Preferences &m_preferences;
    MainLoop &m_loop;
    std::map<QWidget *, Followed> m_windows;
    QPointer<QWidget> m_main;
    Opens m_open; ///< Until they are open again.
    QStringList m_kept; ///< The others that were or are open, as they are kept.
    bool m_isReopened = false; ///< Those that are open now are to be kept.
    bool m_isEnding = false; ///< What closes now closes with the program.
    DelayedCallHandle m_soon;
    DelayedCallHandle m_openSoon;
};

} // namespace moravel
