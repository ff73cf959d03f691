// SPDX-License-Identifier: MIT
#include "mainwindow/CaptionLabel.h"

#include "mainwindow/Contrast.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace moravel {

namespace {

constexpr int LongestLine =
    300; // characters that a line of a label can show at most, with room to spare
constexpr int LongestToolTip = 1500;

// What a line ends with would push it inwards where lines end on the right.
QString withoutBreak(QString line)
{
    while (!line.isEmpty() && line.back().isSpace())
        line.chop(1);
    return line;
}

} // namespace

QString plainToolTip(const QString &text)
{
    QString shown = text.trimmed();
    if (shown.size() > LongestToolTip)
        shown = shown.left(LongestToolTip) + QChar(0x2026);
    if (shown.isEmpty())
        return {};
    return QStringLiteral("<span style=\"white-space: pre-wrap\">%1</span>")
        .arg(shown.toHtmlEscaped());
}

CaptionLabel::CaptionLabel(int maximumLines, QWidget *parent)
    : QWidget(parent), m_maximumLines(maximumLines)
{
    const bool fill = maximumLines == FillHeight;
    QSizePolicy policy(QSizePolicy::Ignored,
                       fill ? QSizePolicy::Expanding : QSizePolicy::Preferred);
    policy.setHeightForWidth(!fill);
    setSizePolicy(policy);
}

void CaptionLabel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_layoutWidth = -1;
    setAccessibleName(text.isEmpty() ? m_placeholder : text.left(LongestToolTip));
    updateGeometry();
    update();
}

void CaptionLabel::setCentred(bool centred)
{
    m_centred = centred;
    update();
}

void CaptionLabel::setSecondary(bool secondary)
{
    m_secondary = secondary;
    update();
}

void CaptionLabel::setPlaceholder(const QString &placeholder)
{
    m_placeholder = placeholder;
    if (m_text.isEmpty())
        setAccessibleName(placeholder);
    update();
}

bool CaptionLabel::isElided() const
{
    return layoutFor(width(), linesThatFit()).elided;
}

int CaptionLabel::linesThatFit() const
{
    const int fitting = std::max(1, height() / fontMetrics().lineSpacing());
    return m_maximumLines == FillHeight ? fitting : std::min(fitting, m_maximumLines);
}

const CaptionLabel::Layout &CaptionLabel::layoutFor(int width, int most) const
{
    if (width == m_layoutWidth && most == m_layoutLines)
        return m_layout;
    m_layoutWidth = width;
    m_layoutLines = most;
    m_layout = {};
    QString text = m_text.left(qsizetype(LongestLine) * most);
    text.replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(text, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (m_layout.lines.size() + 1 < most) {
            m_layout.lines += withoutBreak(text.mid(line.textStart(), line.textLength()));
            continue;
        }
        QString rest = withoutBreak(text.mid(line.textStart()));
        m_layout.elided = line.textStart() + line.textLength() < text.size();
        if (m_layout.elided) {
            rest.replace(QChar::LineSeparator, u' ');
            rest = fontMetrics().elidedText(rest + u' ', Qt::ElideRight, width);
            if (!rest.contains(QChar(0x2026))) // the line fits, but lines follow
                rest = rest.trimmed() + QChar(0x2026);
        }
        m_layout.lines += rest;
        break;
    }
    layout.endLayout();
    return m_layout;
}

int CaptionLabel::heightForWidth(int width) const
{
    const auto lines = std::max<qsizetype>(1, layoutFor(width, m_maximumLines).lines.size());
    return static_cast<int>(lines) * fontMetrics().lineSpacing();
}

QSize CaptionLabel::sizeHint() const
{
    return {100, fontMetrics().lineSpacing()};
}

QSize CaptionLabel::minimumSizeHint() const
{
    return {20, fontMetrics().lineSpacing()};
}

void CaptionLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor text = palette().color(foregroundRole());
    const QColor quiet = quietText(text, palette().color(QPalette::Base));
    painter.setPen(m_secondary || m_text.isEmpty() ? quiet : text);
    if (m_text.isEmpty()) {
        painter.drawText(rect(), Qt::AlignCenter, m_placeholder);
        return;
    }
    // The words run as their language does; all lines of a cell begin on the side where the window begins.
    painter.setLayoutDirection(m_text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    // On one base line, also where letters of the text come from other fonts, which are higher.
    const QFontMetrics metrics = fontMetrics();
    int base = metrics.ascent() + metrics.leading() / 2;
    for (const QString &line : layoutFor(width(), linesThatFit()).lines) {
        const int rest = width() - metrics.horizontalAdvance(line);
        painter.drawText(m_centred ? rest / 2 : isRightToLeft() ? rest : 0, base, line);
        base += metrics.lineSpacing();
    }
}

bool CaptionLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QToolTip::showText(help->globalPos(), isElided() ? plainToolTip(m_text) : QString(), this);
        return true;
    }
    return QWidget::event(event);
}

void CaptionLabel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked(1);
}

void CaptionLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked(2);
}

void CaptionLabel::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        m_layoutWidth = -1;
        updateGeometry();
    }
    QWidget::changeEvent(event);
}

} // namespace moravel
