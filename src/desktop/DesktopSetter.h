// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopContext.h"

#include <QSet>

#include <memory>
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
    void desktopOptionsForFile(const QString &path,
                               const std::function<void(DesktopScaling)> &done);

    /// Plain path of what the main screen shows; ends in "/" for a folder; "" when it is not known.
    QString shownPath() const;

    /// Gives the picture again, a second later, to screens that came or whose desktop was restarted.
    void reapplySoon();

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
    void rememberPrevious(const QString &url);
    QStringList targets(const DesktopScreen &main);
    void start(const QString &path, const QStringList &screens);
    void setScreens(const JobPtr &job, DesktopScaling scaling);
    void screenIsSet(Job &job, const tl::expected<void, DesktopError> &result);
    void finish(const QString &path);
    void release();
    void reapply();
    void logOnce(const QString &text);

    const DesktopContext &m_context;
    QString m_currentDesktopPath;
    QString m_previousDesktopPath;
    QString m_moravelScreen;
    QString m_lastSet; ///< The last picture that the desktop took from us.
    bool m_deletingDesktop = false;
    bool m_toldOnePicture = false;
    JobPtr m_job; ///< The one that is waited for.
    int m_jobs = 0; ///< How many were started; the number of the last one.
    std::optional<QString> m_waiting;
    DelayedCallHandle m_deadline;
    DelayedCallHandle m_reapply;
    QSet<QString> m_logged;
    std::shared_ptr<int> m_alive =
        std::make_shared<int>(); ///< Late answers look whether we are there.
};

} // namespace moravel
