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

void paintImage(QPainter *painter, const QImage &image, const QRect &place)
{
    const QRectF shade = QRectF(place).adjusted(-0.5, -0.5, 0.5, 0.5);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(QColor(0, 0, 0, 26), 1));
    painter->drawRoundedRect(shade.adjusted(-1, 0, 1, 2), 2, 2);
    painter->setPen(QPen(QColor(0, 0, 0, 70), 1));
    painter->drawRect(shade);
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
    if (option.state & QStyle::State_Selected)
        paintRing(painter, ring, highlight, true);
    if (image.isNull())
        paintMissing(painter, place, index.data(BrowserModel::FailedRole).toBool());
    else
        paintImage(painter, image, place);
    paintTitle(painter, option, index.data(Qt::DisplayRole).toString());
    if (option.state & QStyle::State_HasFocus)
        paintRing(painter, option.rect.adjusted(1, 1, -1, -1), highlight, false);
    painter->restore();
}

void ImageDelegate::paintMissing(QPainter *painter, const QRect &frame, bool failed) const
{
    constexpr int Points = 28;
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(0, 0, 0, 14));
    painter->drawRoundedRect(frame, 3, 3);
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
