// SPDX-License-Identifier: MIT
#include "desktop/DesktopSetter.h"

#include "desktop/DesktopSizing.h"
#include "desktop/DesktopUrls.h"
#include "desktop/Logging.h"

#include <algorithm>
#include <utility>

namespace moravel {

namespace {

// A desktop that has not answered by then is not waited for; a late answer still counts.
constexpr double AnswerSeconds = 10;

// Screens come one by one, and a desktop that was restarted needs a moment to listen.
constexpr double SettleSeconds = 1;

} // namespace

// A picture on its way to the screens.
struct DesktopSetter::Job
{
    int number = 0;
    QString path;
    QStringList screens;
    qsizetype unanswered = 0;
    bool failed = false;
};

DesktopSetter::DesktopSetter(const DesktopContext &context) : m_context(context)
{ }

DesktopSetter::~DesktopSetter() = default;

QString DesktopSetter::shownPath() const
{
    return desktopPathFromUrl(m_context.pictures.desktopImageUrl(m_context.mainScreen().id));
}

void DesktopSetter::setDesktopToFile(const QString &path)
{
    if (isBusy())
        m_waiting = path;
    else
        begin(path);
}

void DesktopSetter::begin(const QString &path)
{
    const DesktopScreen main = m_context.mainScreen();
    m_moravelScreen = main.id;
    const QString url = m_context.pictures.desktopImageUrl(main.id);
    const auto &isDownloading = m_context.ports.isDownloading;
    if (desktopPathFromUrl(url) == path)
        return;
    if (path.isEmpty() || (isDownloading && isDownloading(path)))
        return;
    if (!m_deletingDesktop)
        rememberPrevious(url);
    m_deletingDesktop = false;
    start(path, targets(main));
}

void DesktopSetter::rememberPrevious(const QString &url)
{
    m_previousDesktopPath = url;
    ThumbView &cell = m_context.cells.desktopThumb();
    ThumbButtons buttons = cell.buttons();
    buttons.prevDesktopBtn = !url.isEmpty();
    cell.setButtons(buttons);
}

QStringList DesktopSetter::targets(const DesktopScreen &main)
{
    const QList<DesktopScreen> screens = m_context.pictures.screens();
    const bool perScreen = m_context.pictures.abilities().perScreen;
    const bool all = m_context.preferences.doSetAllScreens();
    if (!perScreen && !all && screens.size() > 1 && !std::exchange(m_toldOnePicture, true))
        qCInfo(lcDesktop).noquote()
            << m_context.pictures.name() << "has one picture for all screens";
    if (!perScreen || !all || screens.isEmpty())
        return {main.id};
    QStringList ids;
    for (const DesktopScreen &screen : screens)
        ids.append(screen.id);
    return ids;
}

void DesktopSetter::start(const QString &path, const QStringList &screens)
{
    const Files &files = m_context.platform.files;
    if (files.size(path) < 0 || files.isFolder(path)) {
        logOnce(QStringLiteral("no picture file: ") + path);
        return;
    }
    m_job = std::make_shared<Job>(Job{++m_jobs, path, screens, screens.size(), false});
    m_deadline = m_context.platform.loop.after(AnswerSeconds, [this] {
        logOnce(QStringLiteral("no answer from the desktop for ") + m_job->path);
        release();
    });
    desktopOptionsForFile(path, [this, job = m_job](DesktopScaling scaling) {
        if (job == m_job)
            setScreens(job, scaling);
    });
}

void DesktopSetter::desktopOptionsForFile(const QString &path,
                                          const std::function<void(DesktopScaling)> &done)
{
    const auto choose = [this, done, alive = std::weak_ptr(m_alive)](QSize picture) {
        if (!alive.expired())
            done(desktopScaling(picture.isValid() ? picture : QSize(0, 0),
                                m_context.mainScreen().pixels,
                                m_context.preferences.desktopSizeSetting()));
    };
    if (m_context.ports.pixelSize)
        m_context.ports.pixelSize(path, choose);
    else
        choose({});
}

void DesktopSetter::setScreens(const JobPtr &job, DesktopScaling scaling)
{
    const QString url = desktopUrlFromPath(job->path);
    for (const QString &screen : std::as_const(job->screens)) {
        m_context.pictures.setDesktopImageUrl(url, screen, scaling,
                                              [this, job, alive = std::weak_ptr(m_alive)](
                                                  const tl::expected<void, DesktopError> &result) {
                                                  if (!alive.expired())
                                                      screenIsSet(*job, result);
                                              });
    }
}

void DesktopSetter::screenIsSet(Job &job, const tl::expected<void, DesktopError> &result)
{
    if (!result) {
        job.failed = true;
        logOnce(QStringLiteral("%1 not set on screen %2: %3")
                    .arg(job.path, result.error().screen, result.error().description));
    }
    if (--job.unanswered > 0)
        return;
    if (!job.failed && job.number == m_jobs)
        finish(job.path);
    if (m_job.get() == &job)
        release();
}

void DesktopSetter::finish(const QString &path)
{
    m_logged.clear();
    m_lastSet = path;
    m_currentDesktopPath = path;
    if (onDesktopSet)
        onDesktopSet(path);
}

void DesktopSetter::release()
{
    m_job.reset();
    m_deadline.reset();
    if (const std::optional<QString> next = std::exchange(m_waiting, std::nullopt))
        begin(*next);
}

void DesktopSetter::reapplySoon()
{
    if (m_reapply)
        return;
    m_reapply = m_context.platform.loop.after(SettleSeconds, [this] {
        m_reapply.reset();
        if (isBusy())
            reapplySoon();
        else
            reapply();
    });
}

// Gives the picture again to what shows it by our doing, and to all screens when the user wants that.
// Where something else stands in its place, somebody has chosen that.
void DesktopSetter::reapply()
{
    const QString path = m_currentDesktopPath;
    if (path.isEmpty() || isDesktopFolder(path) || m_lastSet != path)
        return;
    const DesktopScreen main = m_context.mainScreen();
    const QList<DesktopScreen> screens = m_context.pictures.screens();
    const bool isThere =
        std::any_of(screens.begin(), screens.end(),
                    [this](const DesktopScreen &screen) { return screen.id == m_moravelScreen; });
    const QString shown = isThere
        ? desktopPathFromUrl(m_context.pictures.desktopImageUrl(m_moravelScreen))
        : QString();
    if (!shown.isEmpty() && shown != path)
        return;
    if (m_context.preferences.doSetAllScreens() || !m_context.pictures.abilities().perScreen)
        start(path, targets(main));
    else if (isThere)
        start(path, {m_moravelScreen});
}

// The watcher may ask for the same in vain twice a second.
void DesktopSetter::logOnce(const QString &text)
{
    constexpr qsizetype Most = 50;
    if (m_logged.contains(text))
        return;
    if (m_logged.size() >= Most)
        m_logged.clear();
    m_logged.insert(text);
    qCWarning(lcDesktop).noquote() << text;
}

} // namespace moravel
