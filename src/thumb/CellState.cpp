// SPDX-License-Identifier: MIT
#include "thumb/CellState.h"

#include "thumb/ThumbView.h"

namespace moravel {

namespace {

bool hasEnded(ThumbView::Search search)
{
    return search == ThumbView::Search::Failed || search == ThumbView::Search::Nothing;
}

/// The day that was asked for, in one piece: in a narrow cell it would break anywhere.
QString unbroken(QString date)
{
    return date.replace(u' ', QChar::Nbsp);
}

CellState stateWithout(const ThumbView &cell)
{
    switch (cell.search()) {
    case ThumbView::Search::Failed:
        return CellState::Failed;
    case ThumbView::Search::Nothing:
        return CellState::Nothing;
    default:
        return cell.thumbPath().isEmpty() ? CellState::Waiting : CellState::Unreadable;
    }
}

} // namespace

bool hasPicture(const ThumbView &cell)
{
    const QImage image = cell.imageView();
    return !image.isNull() && image.cacheKey() != cell.images().blank.cacheKey();
}

CellState cellState(const ThumbView &cell)
{
    if (cell.thumbPath() == ThumbView::deletedMark())
        return CellState::Deleted;
    // Each layout has cells without a picture spin again, also those that were given up.
    const bool spins = cell.isSpinning() && !hasEnded(cell.search());
    if (spins || cell.search() == ThumbView::Search::Looking)
        return CellState::Looking;
    if (!hasPicture(cell))
        return stateWithout(cell);
    if (cell.wantedDate().isEmpty() || cell.wantedDate() == cell.dateString())
        return CellState::Shown;
    return cell.search() == ThumbView::Search::Failed ? CellState::EarlierUnasked
                                                      : CellState::Earlier;
}

QString stateText(const ThumbView &cell)
{
    switch (cellState(cell)) {
    case CellState::Earlier:
        return ThumbView::tr("Nothing on %1").arg(unbroken(cell.wantedDate()));
    case CellState::EarlierUnasked:
        return ThumbView::tr("No answer for %1").arg(unbroken(cell.wantedDate()));
    case CellState::Nothing:
        return ThumbView::tr("Nothing from this day to %1").arg(unbroken(cell.wantedDate()));
    case CellState::Failed:
        return ThumbView::tr("The picture service did not answer");
    case CellState::Unreadable:
        return ThumbView::tr("The picture could not be loaded");
    default:
        return {};
    }
}

QString shownCaption(const ThumbView &cell)
{
    const bool speaksOfSearch = cell.captionField() == ThumbView::lookingText();
    return speaksOfSearch && hasEnded(cell.search()) ? QString() : cell.captionField();
}

QString shownDate(const ThumbView &cell)
{
    const bool failed = cellState(cell) == CellState::Failed && !cell.wantedDate().isEmpty();
    return failed ? cell.wantedDate() : cell.dateField();
}

QString spokenText(const ThumbView &cell)
{
    QString caption = shownCaption(cell);
    if (caption.isEmpty() && cellState(cell) == CellState::Looking)
        caption = ThumbView::lookingText();
    QStringList parts{cell.sourceField(), stateText(cell), shownDate(cell), caption};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace moravel
