// SPDX-License-Identifier: MIT
#include "desktop/Rotation.h"

#include "desktop/DesktopSetter.h"
#include "desktop/DesktopUrls.h"
#include "desktop/Logging.h"
#include "desktop/RotationRules.h"

#include <QFileInfo>

#include <algorithm>

namespace moravel {

namespace {

constexpr int SecondsPerMinute = 60;
constexpr int HoldMinutes = 60;
constexpr double InfoSeconds = 30;
constexpr double NextThumbSeconds = 1;

// The folder holds the folder of thumbnails, too, which takes a place in the listing.
QStringList withThumbsFolder(QStringList listing)
{
    const QString thumbs = QStringLiteral("thumbs");
    listing.insert(std::lower_bound(listing.begin(), listing.end(), thumbs) - listing.begin(),
                   thumbs);
    return listing;
}

} // namespace

Rotation::Rotation(const DesktopContext &context, DesktopSetter &setter)
    : m_context(context), m_setter(setter)
{ }

void Rotation::rotateDesktop(RotateSender sender)
{
    setupNextDesktopRotate();
    const QString folder = m_context.folders.moravelFolder();
    const auto listing = m_context.platform.files.list(folder);
    if (!listing) {
        qCInfo(lcDesktop).noquote() << "no rotation:" << folder << listing.error().description;
        return;
    }
    for (ThumbView *cell : shuffledCells()) {
        const QString path = usablePicture(*cell);
        if (path.isEmpty())
            continue;
        useCell(*cell, path, sender);
        return;
    }
    const bool hasThumbs = m_context.platform.files.isFolder(folder + QLatin1String("thumbs"));
    rotateFromFolder(folder, hasThumbs ? withThumbsFolder(*listing) : *listing);
}

std::vector<ThumbView *> Rotation::shuffledCells()
{
    std::vector<ThumbView *> cells;
    for (const auto &cell : m_context.cells.thumbViews())
        cells.push_back(cell.get());
    return shuffleArray(cells, [this] { return m_context.platform.random.next(); });
}

QString Rotation::usablePicture(const ThumbView &cell) const
{
    if (cell.isHidden() || cell.usedAsDesktop() || cell.picPath().isEmpty()
        || cell.thumbPath() == ThumbView::deletedMark())
        return {};
    return m_context.links.picLinkToPath(cell.picPath(), false, true);
}

void Rotation::useCell(ThumbView &cell, const QString &path, RotateSender sender)
{
    m_setter.setDesktopToFile(path);
    cell.setUsedAsDesktop(true);
    if (sender != RotateSender::Button && m_context.ports.loadNextThumb)
        m_context.platform.loop.schedule(NextThumbSeconds, m_context.ports.loadNextThumb);
}

void Rotation::rotateFromFolder(const QString &folder, const QStringList &listing)
{
    const auto name = fallbackEntry(listing, m_context.platform.random.next());
    if (!name || !m_context.platform.images.isImageExtension(QFileInfo(*name).suffix()))
        return;
    const QString path = folder + *name;
    if (m_context.fileSizeMB(path) <= LargestQuietMB)
        m_setter.setDesktopToFile(path);
}

void Rotation::previousDesktop()
{
    setupNextDesktopRotate();
    m_setter.setDesktopToFile(desktopPathFromUrl(m_setter.previousDesktopPath()));
}

void Rotation::holdDesktopForOneHour()
{
    m_context.preferences.setRotateFrequency(HoldMinutes);
    setupNextDesktopRotate();
    m_context.preferences.readChangeFrequency();
    if (m_context.ports.userChose) // who wants to look at it for an hour
        m_context.ports.userChose(m_setter.currentDesktopPath());
}

void Rotation::setupNextDesktopRotate()
{
    m_rotateCalls.clear();
    m_nextDesktopRotate.reset();
    m_waits = false;
    const int minutes = m_context.preferences.rotateFrequency();
    if (minutes >= 1) {
        const qint64 seconds = qint64(minutes) * SecondsPerMinute;
        scheduleRotateDesktop(static_cast<double>(seconds));
        m_nextDesktopRotate = m_context.platform.loop.now().addSecs(seconds);
    }
    showRotateInfo();
}

void Rotation::scheduleRotateDesktop(double seconds)
{
    m_rotateCalls.push_back(m_context.platform.loop.after(seconds, [this] { rotateWhenDue(); }));
}

QString Rotation::whyNotNow() const
{
    return m_context.ports.whyNotNow ? m_context.ports.whyNotNow() : QString();
}

void Rotation::rotateWhenDue()
{
    m_waits = !whyNotNow().isEmpty();
    if (m_waits)
        showRotateInfo();
    else
        rotateDesktop(RotateSender::TimerOrMenu);
}

void Rotation::catchUp()
{
    if (m_waits)
        rotateWhenDue();
}

void Rotation::markFirstRotationDue()
{
    if (m_context.preferences.rotateFrequency() > 0)
        m_nextDesktopRotate = m_context.platform.loop.now();
}

QString Rotation::rotateInfoText() const
{
    if (const QString why = m_waits ? whyNotNow() : QString(); !why.isEmpty())
        return why;
    return moravel::rotateInfoText(m_nextDesktopRotate, m_context.platform.loop.now(),
                                   isDesktopFolder(m_setter.currentDesktopPath()));
}

void Rotation::showRotateInfo()
{
    if (!m_rotateInfoTimer)
        m_rotateInfoTimer =
            m_context.platform.loop.every(InfoSeconds, [this] { showRotateInfo(); });
    if (m_context.ports.showNextChange)
        m_context.ports.showNextChange(rotateInfoText());
    if (m_context.ports.showKeepButton)
        m_context.ports.showKeepButton(keepButtonVisible(m_context.preferences.rotateFrequency(),
                                                         m_nextDesktopRotate.has_value()));
}

} // namespace moravel
