// SPDX-License-Identifier: MIT
#include "browser/ImageDelegate.h"

#include "browser/BrowserModel.h"
#include "browser/ImageGrid.h"

#include <QPainter>
#include <QStyleOptionViewItem>

#include <algorithm>

namespace moravel {

namespace {

constexpr int TitlePadding = 6;
constexpr double Radius = 6;
constexpr int RingGap = 4; ///< Between a picture and the ring around it.

/// Where a picture stands in its frame: in the middle, scaled down to fit, never up.
QRect placeIn(const QRect &frame, QSizeF size)
{
    if (size.width() > frame.width() || size.height() > frame.height())
        size.scale(frame.size(), Qt::KeepAspectRatio);
    QRect place(QPoint(), size.toSize().expandedTo({1, 1}));
    place.moveCenter(frame.center());
    return place;
}

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &option)
{
    return option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

void paintRing(QPainter *painter, const QRect &around, const QColor &colour, bool filled)
{
    const double inset = filled ? 0 : 1;
    painter->setPen(filled ? QPen(Qt::NoPen) : QPen(colour, 2));
    painter->setBrush(filled ? QBrush(colour) : QBrush(Qt::NoBrush));
    painter->drawRoundedRect(QRectF(around).adjusted(inset, inset, -inset, -inset), Radius, Radius);
}

/// A colour in the shade; not black that lets it shine through, see paintImage().
QColor shaded(const QColor &colour, double black)
{
    const auto part = [black](float value) { return static_cast<float>(value * (1 - black)); };
    return QColor::fromRgbF(part(colour.redF()), part(colour.greenF()), part(colour.blueF()));
}

/// The picture and the shade around it. Plain opaque rectangles: what is smooth, round or lets shine through, Qt
/// spreads over its threads and waits for them, several times a picture, and cuts line by line where only parts
/// of the view are painted. Together that may take longer than a frame.
void paintImage(QPainter *painter, const QImage &image, const QRect &place, const QColor &around)
{
    const QColor faint = shaded(around, 0.1);
    painter->fillRect(place.adjusted(-2, 0, 2, 0), faint);
    painter->fillRect(QRect(place.left(), place.bottom() + 2, place.width(), 1), faint);
    painter->fillRect(place.adjusted(-1, -1, 1, 1), shaded(around, 0.28));
    if (image.hasAlphaChannel())
        painter->fillRect(place, around);
    painter->drawImage(place, image);
}

} // namespace

ImageDelegate::ImageDelegate(const BrowserLook &look, QObject *parent)
    : QAbstractItemDelegate(parent), m_look(look)
{ }

int ImageDelegate::titleHeight() const
{
    return QFontMetrics(m_font).height() + 2;
}

QSize ImageDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return option.rect.size();
}

void ImageDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRect frame = frameIn(option.rect, titleHeight());
    const auto image = index.data(Qt::DecorationRole).value<QImage>();
    const double scale = painter->device()->devicePixelRatioF();
    const QRect place = image.isNull() ? frame : placeIn(frame, QSizeF(image.size()) / scale);
    const QColor highlight = option.palette.color(groupOf(option), QPalette::Highlight);
    const QRect ring = place.adjusted(-RingGap, -RingGap, RingGap, RingGap);
    const bool selected = option.state & QStyle::State_Selected;
    const QColor around =
        selected ? highlight : option.palette.color(groupOf(option), QPalette::Base);
    if (selected)
        paintRing(painter, ring, highlight, true);
    if (image.isNull())
        paintMissing(painter, place, shaded(around, 0.055),
                     index.data(BrowserModel::FailedRole).toBool());
    else
        paintImage(painter, image, place, around);
    paintTitle(painter, option, index.data(Qt::DisplayRole).toString());
    if (option.state & QStyle::State_HasFocus)
        paintRing(painter, option.rect.adjusted(1, 1, -1, -1), highlight, false);
    painter->restore();
}

void ImageDelegate::paintMissing(QPainter *painter, const QRect &frame, const QColor &colour,
                                 bool failed) const
{
    constexpr int Points = 28;
    painter->fillRect(frame, colour);
    if (!failed || !m_look.pixmap)
        return;
    const QPixmap icon = m_look.pixmap(QStringLiteral("picture"), Points, QColor(0x80, 0x80, 0x80),
                                       painter->device()->devicePixelRatioF());
    QRect place(0, 0, Points, Points);
    place.moveCenter(frame.center());
    painter->drawPixmap(place, icon);
}

void ImageDelegate::paintTitle(QPainter *painter, const QStyleOptionViewItem &option,
                               const QString &title) const
{
    if (title.isEmpty())
        return;
    QRect line = option.rect.adjusted(CellPadding - 4, 0, 4 - CellPadding, 2 - CellPadding);
    line.setTop(line.bottom() - titleHeight());
    const QFontMetrics metrics(m_font);
    // Shaping a whole essay to show its beginning takes long; hardly a letter is narrower than this.
    constexpr int NarrowLetter = 2;
    const QString text = metrics.elidedText(title.left(line.width() / NarrowLetter).simplified(),
                                            Qt::ElideRight, line.width() - 2 * TitlePadding);
    const bool selected = option.state & QStyle::State_Selected;
    if (selected) {
        const int width = metrics.horizontalAdvance(text) + 2 * TitlePadding;
        QRect pill(0, 0, std::min(width, line.width()), line.height());
        pill.moveCenter(line.center());
        painter->setPen(Qt::NoPen);
        painter->setBrush(option.palette.color(groupOf(option), QPalette::Highlight));
        painter->drawRoundedRect(pill, 4, 4);
    }
    painter->setFont(m_font);
    painter->setPen(option.palette.color(groupOf(option),
                                         selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(line, Qt::AlignCenter | Qt::TextSingleLine, text);
}

} // namespace moravel
