// SPDX-License-Identifier: MIT
#include "thumb/ThumbCells.h"

#include <algorithm>

namespace moravel {

ThumbCells::ThumbCells(ThumbImages images, ThumbCommands commands)
    : m_images(std::move(images)), m_commands(std::move(commands))
{ }

void ThumbCells::createSpecialCells(const QDateTime &now)
{
    m_desktopThumb = std::make_unique<ThumbView>(ThumbView::DesktopTag, m_images, m_commands, now);
    ThumbButtons buttons = m_desktopThumb->buttons();
    buttons.newDesktopBtn = true;
    buttons.prevDesktopBtn = false; // until there is a desktop to go back to
    buttons.deleteBtn = false; // until there is a picture
    buttons.infoButton = false;
    buttons.refreshButton = false;
    m_desktopThumb->setButtons(buttons);
    m_desktopThumb->setClickerToolTip(ThumbView::tr("Double-click to set as desktop."));
    m_browserThumb = std::make_unique<ThumbView>(ThumbView::BrowserTag, m_images, m_commands, now);
}

ThumbView &ThumbCells::addThumbView(const QString &longName, const QString &shortName,
                                    const QDateTime &now)
{
    auto cell =
        std::make_unique<ThumbView>(ThumbView::GridTag + count(), m_images, m_commands, now);
    ThumbButtons buttons = cell->buttons();
    buttons.newDesktopBtn = false;
    buttons.deleteBtn = false; // until there is a picture
    cell->setButtons(buttons);
    cell->showSource(longName, shortName);
    return *m_thumbViews.emplace_back(std::move(cell));
}

int ThumbCells::visibleThumbs() const
{
    return static_cast<int>(std::count_if(m_thumbViews.begin(), m_thumbViews.end(),
                                          [](const auto &cell) { return !cell->isHidden(); }));
}

template <typename Test>
ThumbView *ThumbCells::first(Test test) const
{
    const auto it = std::find_if(m_thumbViews.begin(), m_thumbViews.end(),
                                 [&](const auto &cell) { return test(*cell); });
    return it == m_thumbViews.end() ? nullptr : it->get();
}

ThumbView *ThumbCells::thumbForTag(int tag) const
{
    if (tag == ThumbView::DesktopTag)
        return m_desktopThumb.get();
    return first([tag](const ThumbView &cell) { return cell.tag() == tag; });
}

ThumbView *ThumbCells::thumbForSource(const QString &name) const
{
    return first([&](const ThumbView &cell) {
        return cell.shortSourceName() == name || cell.longSourceName() == name;
    });
}

ThumbView *ThumbCells::thumbForThumbLink(const QString &link) const
{
    return first([&](const ThumbView &cell) { return cell.thumbPath() == link; });
}

QString ThumbCells::thumbSourceForPic(const QString &link) const
{
    const ThumbView *cell = first([&](const ThumbView &c) { return c.picPath() == link; });
    return cell ? cell->longSourceName() : QString();
}

bool ThumbCells::currentDesktopShowingInThumbs() const
{
    const ThumbView *cell = thumbForSource(m_desktopThumb->shortSourceName());
    return cell && cell->dateString() == m_desktopThumb->dateString();
}

} // namespace moravel
