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
    m_showButton = new QPushButton(tr("&Show Pictures"), card);
    m_showButton->setObjectName(QStringLiteral("showPicturesButton"));
    m_showButton->setAutoDefault(true);
    m_showButton->setDefault(true);
    connect(m_showButton, &QPushButton::clicked, this,
            [this] { Q_EMIT sourcesChosen(tickedTags()); });
    column->addWidget(m_showButton, 0, Qt::AlignRight);
    content()->addWidget(card);
    content()->setAlignment(card, Qt::AlignHCenter);
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
    auto *cells = new QGridLayout(list);
    cells->setContentsMargins(0, 0, 0, 0);
    cells->setHorizontalSpacing(16);
    cells->setVerticalSpacing(6);
    const auto count = static_cast<int>(longNames.size());
    const int columns = count < SourcesForTwoColumns ? 1 : 2;
    const int rows = (count + columns - 1) / columns;
    for (int i = 0; i < count; ++i) // down the first column, then down the second
        cells->addWidget(createButtonWithTitle(longNames.at(i), i), i % rows, i / rows);
    auto *scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(list);
    scroll->viewport()->setAutoFillBackground(false);
    list->setAutoFillBackground(false);
    return scroll;
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
