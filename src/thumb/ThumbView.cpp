// SPDX-License-Identifier: MIT
#include "thumb/ThumbView.h"

#include "text/Captions.h"

namespace moravel {

namespace {

void call(const std::function<void(ThumbView &)> &command, ThumbView &cell)
{
    if (command)
        command(cell);
}

} // namespace

ThumbView::ThumbView(int tag, const ThumbImages &images, const ThumbCommands &commands,
                     const QDateTime &created)
    : m_images(images), m_commands(commands), m_tag(tag), m_startCheckDate(created)
{ }

void ThumbView::showSource(const QString &longName, const QString &shortName)
{
    m_longSourceName = longName;
    m_shortSourceName = shortName;
    Q_EMIT changed();
}

void ThumbView::showDate(const QString &localDate)
{
    m_dateString = localDate;
    Q_EMIT changed();
}

void ThumbView::showCaption(const QString &caption)
{
    m_captionString = captionForCell(caption);
    setCaptionField(m_captionString);
}

QString ThumbView::lookingText()
{
    return tr("Looking for new pic...");
}

void ThumbView::setCaptionField(const QString &text)
{
    m_captionField = text;
    Q_EMIT changed();
}

void ThumbView::showThumbImage(const QImage &image, const QString &url)
{
    m_thumbPath = url;
    m_spinning = false;
    m_image = image;
    const bool real = !url.isEmpty() && url != deletedMark();
    m_buttons.deleteBtn = real;
    m_buttons.infoButton = real;
    if (!real || m_tag != DesktopTag)
        m_buttons.refreshButton = real;
    Q_EMIT changed();
}

void ThumbView::blankImage()
{
    m_image = m_images.blank;
    m_search = Search::None; // what is awaited now is its picture
    startSpinner();
}

void ThumbView::prefsImage()
{
    m_image = m_images.prefs;
    m_spinning = false;
    m_buttons.infoButton = false;
    m_buttons.deleteBtn = false;
    showSource({}, {});
    showDate({});
    showCaption({});
    m_infoString.clear();
    m_thumbPath.clear();
    m_picPath.clear();
    m_parentPath.clear();
    m_usedAsDesktop = true;
    Q_EMIT changed();
}

void ThumbView::clearImage()
{
    m_image = {};
    Q_EMIT changed();
}

void ThumbView::startSpinner()
{
    m_spinning = true;
    Q_EMIT changed();
}

void ThumbView::setThumbPath(const QString &path)
{
    m_thumbPath = path;
    Q_EMIT changed();
}

void ThumbView::setSearch(Search search)
{
    if (m_search == search)
        return;
    m_search = search;
    Q_EMIT changed();
}

void ThumbView::setWantedDate(const QString &localDate)
{
    if (m_wantedDate == localDate)
        return;
    m_wantedDate = localDate;
    Q_EMIT changed();
}

void ThumbView::setHidden(bool hidden)
{
    m_hidden = hidden;
    Q_EMIT changed();
}

void ThumbView::setButtons(const ThumbButtons &buttons)
{
    m_buttons = buttons;
    Q_EMIT changed();
}

void ThumbView::showToolTips()
{
    m_toolTips.deleteBtn = tr("Delete this pic.");
    m_toolTips.newDesktopBtn = tr("Change to a new random desktop now.");
    m_toolTips.prevDesktopBtn = tr("Go back to the previous desktop pic.");
    m_toolTips.infoButton = tr("See more info about this pic.");
    m_toolTips.refreshButton = tr("Refresh the data for this pic.");
    m_toolTips.clicker = m_tag == DesktopTag ? QString() : tr("Double-click to set as desktop.");
    Q_EMIT changed();
}

void ThumbView::hideToolTips()
{
    m_toolTips = {};
    Q_EMIT changed();
}

void ThumbView::setClickerToolTip(const QString &text)
{
    m_toolTips.clicker = text;
    Q_EMIT changed();
}

void ThumbView::setThumbAsDesktop(int clickCount)
{
    if (clickCount < 2)
        return;
    const bool isDeleted = m_thumbPath == deletedMark();
    if (m_tag == DesktopTag)
        call(m_commands.showLargePic, *this);
    else if (isDeleted && !m_commands.setAsDesktop) // which would restore it
        call(m_commands.refreshCaption, *this);
    else
        call(m_commands.setAsDesktop, *this);
}

void ThumbView::refreshCaption(int clickCount)
{
    if (clickCount >= 2 && m_captionField != lookingText())
        call(m_commands.refreshCaption, *this);
}

void ThumbView::showThumbLarge()
{
    call(m_commands.showLargePic, *this);
}

void ThumbView::showThumbInFinder()
{
    call(m_commands.showInFinder, *this);
}

void ThumbView::refreshData()
{
    call(m_commands.refreshDataForThumb, *this);
}

QString ThumbView::description() const
{
    const QStringList lines{
        QStringLiteral("%1: %2 (%3) - %4")
            .arg(QString::number(m_tag), m_longSourceName, m_shortSourceName, m_dateString),
        m_thumbPath,
        m_picPath,
        m_parentPath,
        m_captionString,
        m_usedAsDesktop ? QStringLiteral("Has been used as desktop")
                        : QStringLiteral("Not used as desktop")};
    return lines.join(u'\n');
}

QString ThumbView::debugInfo() const
{
    return QStringLiteral("%1 - %2\n\t%3\n\t%4\n\t%5\n")
        .arg(m_longSourceName, m_dateString, m_thumbPath, m_picPath, m_parentPath);
}

} // namespace moravel
