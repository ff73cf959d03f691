// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QObject>
#include <QTimer>

#include <functional>

class QScreen;

namespace moravel {

/// The connected screens as the toolkit follows them. Main thread only.
class Screens : public QObject
{
    Q_OBJECT

public:
    /// @param changed called once a quarter of a second after the last of a row of changes, and after the
    /// machine woke up; never from within.
    explicit Screens(std::function<void()> changed);

    /// The screens, by the names of their connectors.
    QList<DesktopScreen> list() const;
    bool has(const QString &id) const;

private Q_SLOTS:
    void onPrepareForSleep(bool starting);

private:
    void follow(QScreen *screen);

    std::function<void()> m_changed;
    QTimer m_settle;
};

} // namespace moravel
