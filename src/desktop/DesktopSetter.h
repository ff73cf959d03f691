// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopContext.h"

#include <optional>

namespace moravel {

/// Puts picture files onto the desktop and knows which one is there and which one was before.
///
/// The desktop takes a picture in its own time. Until it has answered (10 seconds at most) the setter is
/// busy: a further file waits for its turn, the last one asked for wins.
class DesktopSetter
{
public:
    explicit DesktopSetter(const DesktopContext &context);
    ~DesktopSetter();

    /// Makes a picture file the desktop, on the main screen or on all, unless it is there already or
    /// still being downloaded. Failures are logged and leave the state as it was.
    void setDesktopToFile(const QString &path);

    /// How the file would be laid onto the screens; @p done comes later.
    void desktopOptionsForFile(const QString &path, std::function<void(DesktopScaling)> done);

    /// Plain path of what the main screen shows; ends in "/" for a folder; "" when it is not known.
    QString shownPath() const;

    /// Gives the picture again to screens that came or whose desktop was restarted.
    void reapply();

    bool isBusy() const { return m_job != nullptr; }

    QString currentDesktopPath() const { return m_currentDesktopPath; }

    void setCurrentDesktopPath(const QString &path) { m_currentDesktopPath = path; }

    /// URL text of the desktop before the last change; "" when there is none.
    QString previousDesktopPath() const { return m_previousDesktopPath; }

    /// Id of the screen that was the main one when the desktop was last set.
    QString moravelScreen() const { return m_moravelScreen; }

    bool deletingDesktop() const { return m_deletingDesktop; }

    /// While set, the next change does not remember the desktop that it replaces.
    void setDeletingDesktop(bool deleting) { m_deletingDesktop = deleting; }

    /// Called after a change, with the new path.
    std::function<void(const QString &path)> onDesktopSet;

private:
    struct Job;
    using JobPtr = std::shared_ptr<Job>;

    void begin(const QString &path);
    void rememberPrevious(const DesktopScreen &screen);
    void start(const QString &path, const QStringList &screens);
    QStringList targets(const DesktopScreen &main);
    void setScreens(const JobPtr &job, DesktopScaling scaling);
    void screenIsSet(const JobPtr &job, const tl::expected<void, DesktopError> &result);
    void finish(const JobPtr &job);
    void release();
    void logOnce(const QString &text);

    const DesktopContext &m_context;
    QString m_currentDesktopPath;
    QString m_previousDesktopPath;
    QString m_moravelScreen;
    bool m_deletingDesktop = false;
    JobPtr m_job;
    DelayedCallHandle m_deadline;
    DelayedCallHandle m_reapply;
    std::optional<QString> m_waiting;
    QString m_lastLogged;
};

} // namespace moravel
