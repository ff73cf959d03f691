// SPDX-License-Identifier: MIT
#include "mainwindow/CellWidget.h"

#include "mainwindow/Accessibility.h"
#include "mainwindow/CaptionLabel.h"
#include "mainwindow/CellButton.h"
#include "mainwindow/CellMenu.h"
#include "mainwindow/CellNotice.h"
#include "mainwindow/Contrast.h"
#include "mainwindow/Icons.h"
#include "mainwindow/PictureView.h"
#include "mainwindow/Spinner.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

namespace moravel {

namespace {

// The card leaves room around itself: the first row touches the upper edge of the grid.
constexpr int CardTop = 14;
constexpr int DesktopCardTop = 5; // in the side bar, level with the first row of the grid
constexpr int CardBottom = 4;
constexpr int CardSide = 2; // room for the focus ring
constexpr double PictureProportion = 0.75; // most pictures are 4 to 3
constexpr int TextMargin = 11;

int cardTop(const ThumbView &view)
{
    return view.tag() == ThumbView::DesktopTag ? DesktopCardTop : CardTop;
}

} // namespace

CellWidget::CellWidget(ThumbView &view, QWidget *parent) : QWidget(parent), m_view(view)
{
    installAccessibility();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(CardSide + 1, cardTop(m_view) + 1, CardSide + 1, CardBottom + 8);
    column->setSpacing(0);
    buildPicture();
    buildTexts();
    buildButtons();
    connect(&m_view, &ThumbView::changed, this, &CellWidget::follow);
    follow();
}

void CellWidget::buildPicture()
{
    m_picture = new PictureView(this);
    layout()->addWidget(m_picture);
    m_clicker = new Clicker(m_picture);
    m_clicker->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_clicker->setProperty("tag", m_view.tag());
    m_clicker->installEventFilter(this);
    m_notice = new CellNotice(m_picture);
    m_spinner = new Spinner(m_picture);
    m_bar = new CellButtonBar(m_picture);
    m_bar->hide();
    auto *layers = new QGridLayout(m_picture); // one above the other, later ones on top
    layers->setContentsMargins(0, 0, 0, 0);
    layers->setSpacing(0);
    layers->setRowStretch(0, 1);
    layers->setRowMinimumHeight(1, 9);
    layers->addWidget(m_notice, 0, 0, 2, 1);
    layers->addWidget(m_clicker, 0, 0, 2, 1);
    layers->addWidget(m_spinner, 0, 0, 2, 1, Qt::AlignCenter);
    layers->addWidget(m_bar, 0, 0, Qt::AlignHCenter | Qt::AlignBottom);
    connect(m_clicker, &Clicker::clickCounted, &m_view, &ThumbView::setThumbAsDesktop);
    connect(m_clicker, &Clicker::lookWanted, &m_view, &ThumbView::showThumbLarge);
}

void CellWidget::buildTexts()
{
    auto *texts = new QVBoxLayout;
    texts->setContentsMargins(TextMargin, 8, TextMargin, 0);
    texts->setSpacing(0);
    m_sourceField = new CaptionLabel(2, this);
    m_sourceField->setObjectName(QStringLiteral("sourceField"));
    QFont bold = font();
    bold.setBold(true);
    m_sourceField->setFont(bold);
    if (m_view.tag() == ThumbView::DesktopTag)
        m_sourceField->setPlaceholder(tr("Current desktop"));
    m_dateField = new CaptionLabel(1, this);
    m_dateField->setObjectName(QStringLiteral("dateField"));
    m_dateField->setSecondary(true);
    m_captionField = new CaptionLabel(CaptionLabel::FillHeight, this);
    m_captionField->setObjectName(QStringLiteral("captionField"));
    connect(m_captionField, &CaptionLabel::clicked, &m_view, &ThumbView::refreshCaption);
    texts->addWidget(m_sourceField);
    texts->addWidget(m_dateField);
    texts->addSpacing(6);
    texts->addWidget(m_captionField, 1);
    static_cast<QVBoxLayout *>(layout())->addLayout(texts, 1);
}

CellButton *CellWidget::addButton(const QString &objectName, const QString &iconName,
                                  const QString &name, std::function<void()> command)
{
    CellButton *button = m_bar->addButton(objectName, iconName, name);
    button->installEventFilter(this);
    button->hide();
    connect(button, &QAbstractButton::clicked, &m_view, std::move(command));
    return button;
}

void CellWidget::buildButtons()
{
    const auto &commands = m_view.commands();
    ThumbView &view = m_view;
    m_prevDesktopBtn =
        addButton(QStringLiteral("prevDesktopBtn"), QStringLiteral("previous-desktop"),
                  tr("Previous desktop"), [&commands, &view] { commands.previousDesktop(view); });
    m_newDesktopBtn =
        addButton(QStringLiteral("newDesktopBtn"), QStringLiteral("new-desktop"), tr("New desktop"),
                  [&commands, &view] { commands.newDesktop(view); });
    m_infoButton = addButton(QStringLiteral("infoButton"), QStringLiteral("info"), tr("More info"),
                             [&view] { view.showThumbLarge(); });
    m_refreshButton = addButton(QStringLiteral("refreshButton"), QStringLiteral("refresh"),
                                tr("Refresh"), [&view] { view.refreshData(); });
    m_deleteBtn = addButton(QStringLiteral("deleteBtn"), QStringLiteral("delete"), tr("Delete"),
                            [&commands, &view] { commands.deletePic(view); });
    m_deleteBtn->setProperty("tag", m_view.tag());
}

void CellWidget::follow()
{
    if (m_view.isHidden() && hasFocusInside())
        parentWidget()->setFocus(); // else the next cell would get it
    setVisible(!m_view.isHidden());
    m_sourceField->setText(m_view.sourceField());
    m_dateField->setText(shownDate(m_view));
    m_captionField->setText(shownCaption(m_view));
    followState();
    followToolTips();
    followButtons();
}

void CellWidget::followState()
{
    const CellState state = cellState(m_view);
    const QString text = stateText(m_view);
    const bool isEmpty = !hasPicture(m_view) && state != CellState::Deleted;
    const bool isAwaited = isEmpty && state == CellState::Looking;
    const bool isExplained = isEmpty && !text.isEmpty();
    m_picture->setImage(isExplained ? QImage() : m_view.imageView());
    m_picture->setPlaceholderShown(!isAwaited && !isExplained);
    m_spinner->setVisible(isAwaited);
    m_notice->tell(state, text);
    const QString spoken = spokenText(m_view);
    const QString name = spoken.isEmpty() ? m_sourceField->placeholder() : spoken;
    if (name == m_clicker->accessibleName())
        return;
    m_clicker->setAccessibleName(name);
    m_picture->setAccessibleName(name);
    setAccessibleName(m_view.sourceField().isEmpty() ? name : m_view.sourceField());
}

void CellWidget::followToolTips()
{
    const ThumbToolTips &tips = m_view.toolTips();
    m_clicker->setToolTip(tips.clicker);
    m_deleteBtn->setToolTip(tips.deleteBtn);
    m_infoButton->setToolTip(tips.infoButton);
    m_refreshButton->setToolTip(tips.refreshButton);
    m_newDesktopBtn->setToolTip(tips.newDesktopBtn);
    m_prevDesktopBtn->setToolTip(tips.prevDesktopBtn);
}

void CellWidget::followButtons()
{
    const ThumbButtons shown = m_view.buttons();
    const ThumbCommands &commands = m_view.commands();
    const bool reveal = underMouse() || hasFocusInside();
    bool any = false;
    const auto apply = [&](CellButton *button, bool wanted, bool offered) {
        const bool visible = wanted && offered;
        if (!visible && button->hasFocus())
            m_clicker->setFocus();
        button->setVisible(visible);
        any = any || visible;
    };
    const bool desktop = m_view.tag() == ThumbView::DesktopTag;
    apply(m_prevDesktopBtn, desktop && shown.prevDesktopBtn, bool(commands.previousDesktop));
    apply(m_newDesktopBtn, shown.newDesktopBtn, bool(commands.newDesktop));
    apply(m_infoButton, shown.infoButton, bool(commands.showLargePic));
    apply(m_refreshButton, shown.refreshButton, bool(commands.refreshDataForThumb));
    apply(m_deleteBtn, shown.deleteBtn, bool(commands.deletePic));
    m_bar->setVisible(reveal && any);
}

bool CellWidget::hasFocusInside() const
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && isAncestorOf(focus);
}

void CellWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int pictureWidth = width() - 2 * (CardSide + 1);
    m_picture->setFixedHeight(qRound(pictureWidth * PictureProportion));
}

QList<QWidget *> CellWidget::focusChain() const
{
    return {m_clicker,    m_prevDesktopBtn, m_newDesktopBtn,
            m_infoButton, m_refreshButton,  m_deleteBtn};
}

void CellWidget::takeFocus()
{
    m_clicker->setFocus(Qt::OtherFocusReason);
}

bool CellWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        followButtons();
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void CellWidget::enterEvent(QEnterEvent *)
{
    followButtons();
}

void CellWidget::leaveEvent(QEvent *)
{
    followButtons();
}

void CellWidget::contextMenuEvent(QContextMenuEvent *event)
{
    if (QMenu *menu = makeCellMenu(m_view, this))
        menu->popup(event->globalPos());
}

void CellWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr double Radius = PictureView::CornerRadius + 0.5;
    const QRectF card = QRectF(rect()).adjusted(CardSide + 0.5, cardTop(m_view) + 0.5,
                                                -CardSide - 0.5, -CardBottom - 0.5);
    painter.setPen(Qt::NoPen);
    for (const double spread : {3.0, 2.0, 1.0}) { // a soft shadow, a little below
        painter.setBrush(QColor(0, 0, 0, 9));
        painter.drawRoundedRect(card.adjusted(1 - spread / 2, 1, spread / 2 - 1, spread), Radius,
                                Radius);
    }
    const QColor text = palette().color(QPalette::Text);
    const QColor base = palette().color(QPalette::Base);
    painter.setBrush(base);
    painter.setPen(QPen(blend(text, base, 0.14), 1));
    painter.drawRoundedRect(card, Radius, Radius);
    if (m_clicker->hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        const QColor around = palette().color(QPalette::Window);
        painter.setPen(
            QPen(readableOn(around, palette().color(QPalette::Highlight), ShapeContrast), 2));
        painter.drawRoundedRect(card.adjusted(-1, -1, 1, 1), Radius + 1, Radius + 1);
    }
}

ThumbView *focusedCell()
{
    for (QWidget *widget = QApplication::focusWidget(); widget; widget = widget->parentWidget()) {
        if (const auto *cell = qobject_cast<CellWidget *>(widget))
            return &cell->view();
    }
    return nullptr;
}

} // namespace moravel
