// SPDX-License-Identifier: MIT
#include "mainwindow/CellNotice.h"

#include "mainwindow/Contrast.h"
#include "mainwindow/Icons.h"
#include "mainwindow/PictureView.h"

#include <QPainter>
#include <QPainterPath>

namespace moravel {

namespace {

const QColor Plate(20, 20, 24, 205); // white on it is readable above any picture
constexpr int SmallSign = 16;
constexpr int LargeSign = 40;
constexpr int Gap = 6;
constexpr int WrapFlags = static_cast<int>(Qt::TextWordWrap);

QString signOf(CellState state)
{
    switch (state) {
    case CellState::Earlier:
        return QStringLiteral("earlier");
    case CellState::Nothing:
        return QStringLiteral("no-picture");
    case CellState::Unreadable:
        return QStringLiteral("broken-picture");
    default:
        return QStringLiteral("no-service");
    }
}

} // namespace

CellNotice::CellNotice(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("notice"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void CellNotice::tell(CellState state, const QString &text)
{
    if (m_state == state && m_text == text)
        return;
    m_state = state;
    m_text = text;
    setAccessibleName(text);
    setVisible(!text.isEmpty());
    update();
}

void CellNotice::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_state == CellState::Earlier || m_state == CellState::EarlierUnasked)
        paintStrip(painter);
    else
        paintMiddle(painter);
}

void CellNotice::paintStrip(QPainter &painter)
{
    constexpr int Radius = PictureView::CornerRadius;
    const int flags = static_cast<int>(Qt::AlignVCenter) | WrapFlags;
    QRect room = rect().adjusted(2 * Gap + SmallSign, 0, -Gap, 0);
    if (isRightToLeft())
        room.moveLeft(Gap);
    const int text = fontMetrics().boundingRect(room, flags, m_text).height();
    const QRect strip(0, 0, width(), text + Gap);
    QPainterPath path;
    path.addRoundedRect(QRectF(strip).adjusted(0, 0, 0, Radius), Radius, Radius);
    painter.setClipRect(strip);
    painter.fillPath(path, Plate);
    const int left = isRightToLeft() ? width() - Gap - SmallSign : Gap;
    painter.drawPixmap(left, (strip.height() - SmallSign) / 2,
                       iconPixmap(signOf(m_state), SmallSign, Qt::white, devicePixelRatioF()));
    painter.setPen(Qt::white);
    room.setHeight(strip.height());
    const Qt::Alignment side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(room, flags | static_cast<int>(side | Qt::AlignAbsolute), m_text);
}

void CellNotice::paintMiddle(QPainter &painter)
{
    const QColor ground =
        blend(palette().color(QPalette::Text), palette().color(QPalette::Base), 0.07);
    const QColor colour = quietText(palette().color(QPalette::Text), ground);
    const int flags = static_cast<int>(Qt::AlignHCenter | Qt::AlignTop) | WrapFlags;
    QRect room = rect().adjusted(2 * Gap, 0, -2 * Gap, 0);
    const int text = fontMetrics().boundingRect(room, flags, m_text).height();
    room.setTop((height() - LargeSign - Gap - text) / 2);
    painter.drawPixmap((width() - LargeSign) / 2, room.top(),
                       iconPixmap(signOf(m_state), LargeSign, colour, devicePixelRatioF()));
    painter.setPen(colour);
    painter.drawText(room.adjusted(0, LargeSign + Gap, 0, 0), flags, m_text);
}

} // namespace moravel
