// SPDX-License-Identifier: MIT
#include "mainwindow/ToolTips.h"

#include "mainwindow/CheckItem.h"

namespace moravel {

ToolTips::ToolTips(ThumbCells &cells, Preferences &preferences)
    : m_cells(cells)
    , m_preferences(preferences)
    , m_tooltipsMenuItem(makeCheckItem(tr("Show T&ool Tips"), this, [this] { toggleToolTips(); }))
{
    m_tooltipsMenuItem->setObjectName(QStringLiteral("tooltipsMenuItem"));
}

void ToolTips::readTooltipOptions()
{
    m_tooltipsMenuItem->setChecked(
        m_preferences.readHideTooltips()); // the opposite: toggling mends it
    toggleToolTips();
}

void ToolTips::toggleToolTips()
{
    const bool hide = m_tooltipsMenuItem->isChecked();
    m_tooltipsMenuItem->setChecked(!hide);
    if (parentButton)
        parentButton(hide ? QString() : tr("Click here to see the pic in it's original web page."));
    const auto apply = hide ? &ThumbView::hideToolTips : &ThumbView::showToolTips;
    for (const auto &cell : m_cells.thumbViews())
        (cell.get()->*apply)();
    (m_cells.desktopThumb().*apply)();
    m_preferences.saveHideTooltips(hide);
}

} // namespace moravel
