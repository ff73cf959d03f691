// SPDX-License-Identifier: MIT
#pragma once

#include "base/Preferences.h"
#include "platform/MainLoop.h"

#include <QPointer>
#include <QWidget>

#include <map>

namespace moravel {

/// Remembers where the user puts the windows, and puts them there again, as far as there are screens.
/// A window in full screen comes back as it was before.
class WindowPlaces : public QObject
{
    Q_OBJECT

public:
    WindowPlaces(Preferences &preferences, MainLoop &loop);

    /// Puts @p window, which was not shown yet, into its last place and follows it by that name.
    void follow(QWidget &window, const QString &name);

    /// Keeps what has changed, at once. Otherwise it is kept when the windows have come to rest, so that
    /// a session that ends without a word loses nothing.
    void save();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Followed
    {
        QString name;
        QByteArray kept;
    };

    Preferences &m_preferences;
    MainLoop &m_loop;
    std::map<QWidget *, Followed> m_windows;
    DelayedCallHandle m_soon;
};

} // namespace moravel
