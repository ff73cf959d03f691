// SPDX-License-Identifier: MIT
#include "mainwindow/WelcomePanel.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/CheckItem.h"
#include "mainwindow/Icons.h"
#include "thumb/ThumbView.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace moravel {

namespace {

constexpr int CardWidth = 500;
constexpr int ColumnWidth = 205;
constexpr int SourcesForTwoColumns = 7;
constexpr int WidthForTwoColumns = 540;

class Card : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor base = palette().color(QPalette::Base);
        painter.setBrush(base);
        painter.setPen(blend(palette().color(QPalette::Text), base, 0.14));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 12, 12);
    }
};

/// As tall as its content where there is room, else it scrolls.
class CheckList : public QScrollArea
{
public:
    CheckList()
    {
        setFrameShape(QFrame::NoFrame);
        setFocusPolicy(Qt::NoFocus); // it follows the focus of its boxes
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    }

    QSize sizeHint() const override { return widget()->sizeHint(); }

    QSize minimumSizeHint() const override { return {120, 60}; }
};

QLabel *makeText(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

WelcomePanel::WelcomePanel(const QStringList &longNames) : GridPanel(QStringLiteral("welcomePanel"))
{
    buildCard(longNames);
}

void WelcomePanel::buildCard(const QStringList &longNames)
{
    auto *card = new Card(this);
    card->setMaximumWidth(CardWidth);
    auto *column = new QVBoxLayout(card);
    column->setContentsMargins(28, 24, 28, 22);
    column->setSpacing(10);
    auto *title = makeText(tr("Welcome to Moravel"), card);
    QFont big = font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    title->setFont(big);
    column->addWidget(title);
    column->addWidget(makeText(tr("Choose the sources whose pictures of the day you want to see. "
                                  "You can change this at any time in the Sources menu."),
                               card));
    column->addSpacing(4);
    column->addWidget(makeList(longNames), 1);
    column->addSpacing(4);
    m_showButton = new QPushButton(tr("Show &Pictures"), card);
    m_showButton->setObjectName(QStringLiteral("showPicturesButton"));
    m_showButton->setAutoDefault(true);
    m_showButton->setDefault(true);
    m_showButton->setMinimumWidth(m_showButton->sizeHint().width() + 24);
    connect(m_showButton, &QPushButton::clicked, this,
            [this] { Q_EMIT sourcesChosen(tickedTags()); });
    column->addWidget(m_showButton, 0, Qt::AlignRight);
    auto *middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addWidget(card, 1000);
    middle->addStretch(1);
    content()->addLayout(middle);
}

QCheckBox *WelcomePanel::createButtonWithTitle(const QString &longName, int index)
{
    constexpr int BoxWidth = 28;
    auto *check = new QCheckBox(this);
    const QString title = longName.simplified();
    const QString fitting = fontMetrics().elidedText(title, Qt::ElideRight, ColumnWidth - BoxWidth);
    check->setText(menuTitle(fitting));
    if (fitting != title)
        check->setToolTip(plainToolTip(title));
    check->setAccessibleName(title);
    check->setProperty("tag", ThumbView::GridTag + index);
    check->setChecked(true);
    connect(check, &QCheckBox::toggled, this,
            [this] { m_showButton->setEnabled(!tickedTags().isEmpty()); });
    m_checks.append(check);
    return check;
}

QWidget *WelcomePanel::makeList(const QStringList &longNames)
{
    auto *list = new QWidget;
    auto *top = new QVBoxLayout(list);
    top->setContentsMargins(0, 0, 0, 0);
    m_checkCells = new QGridLayout;
    top->addLayout(m_checkCells);
    top->addStretch(1);
    m_checkCells->setContentsMargins(0, 0, 0, 0);
    m_checkCells->setHorizontalSpacing(16);
    m_checkCells->setVerticalSpacing(6);
    for (int i = 0; i < longNames.size(); ++i)
        createButtonWithTitle(longNames.at(i), i);
    arrange(m_checks.size() < SourcesForTwoColumns ? 1 : 2);
    auto *scroll = new CheckList;
    m_list = scroll;
    scroll->setWidget(list);
    scroll->viewport()->setAutoFillBackground(false);
    list->setAutoFillBackground(false);
    return scroll;
}

void WelcomePanel::arrange(int columns)
{
    if (columns == m_columns)
        return;
    m_columns = columns;
    const auto count = static_cast<int>(m_checks.size());
    const int rows = (count + columns - 1) / columns;
    for (int i = 0; i < count; ++i) { // down the first column, then down the second
        m_checkCells->removeWidget(m_checks.at(i));
        m_checkCells->addWidget(m_checks.at(i), i % rows, i / rows);
    }
    if (m_list)
        m_list->updateGeometry();
}

void WelcomePanel::resizeEvent(QResizeEvent *event)
{
    GridPanel::resizeEvent(event);
    const bool two = m_checks.size() >= SourcesForTwoColumns && width() >= WidthForTwoColumns;
    arrange(two ? 2 : 1);
}

QList<int> WelcomePanel::tickedTags() const
{
    QList<int> tags;
    for (const QCheckBox *check : m_checks) {
        if (check->isChecked())
            tags.append(check->property("tag").toInt());
    }
    return tags;
}

void WelcomePanel::showEvent(QShowEvent *event)
{
    GridPanel::showEvent(event);
    m_showButton->setFocus();
}

} // namespace moravel
