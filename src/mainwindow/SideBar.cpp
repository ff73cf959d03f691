// SPDX-License-Identifier: MIT
#include "mainwindow/SideBar.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/CellWidget.h"
#include "mainwindow/DatePickerWidget.h"
#include "mainwindow/GridLayout.h"
#include "mainwindow/Icons.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace moravel {

namespace {

constexpr int Margin = 10;
constexpr int CellBottom = 312; // points from the upper edge to the lower edge of the desktop cell

QToolButton *makeButton(const QString &objectName, QAction *action, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setDefaultAction(action);
    button->setObjectName(objectName);
    button->setAccessibleName(action->toolTip());
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    return button;
}

QLabel *makeLongDate(DatePicker &picker, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QStringLiteral("longDate"));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    const auto follow = [label, &picker] {
        label->setText(label->locale().toString(picker.dateValue().date(), QLocale::LongFormat));
    };
    QObject::connect(&picker, &DatePicker::changed, label, follow);
    follow();
    return label;
}

} // namespace

SideBar::SideBar(ThumbView &desktopThumb, DatePicker &datePicker, const DateActions &actions,
                 QWidget *parent)
    : QWidget(parent)
    , m_nextChange(new CaptionLabel(3, this))
    , m_keepButton(new QPushButton(tr("&Keep for 1 hour"), this))
    , m_newsButton(new QPushButton(themedIcon(QStringLiteral("news")), tr("Read the &News"), this))
{
    setObjectName(QStringLiteral("sideBar"));
    m_nextChange->setObjectName(QStringLiteral("nextChange"));
    m_nextChange->setCentred(true);
    m_nextChange->hide();
    m_keepButton->setObjectName(QStringLiteral("keepButton"));
    m_keepButton->hide();
    connect(m_keepButton, &QPushButton::clicked, this, &SideBar::keepButtonClicked);
    m_newsButton->setObjectName(QStringLiteral("newsButton"));
    m_newsButton->hide();
    connect(m_newsButton, &QPushButton::clicked, this, &SideBar::newsButtonClicked);
    auto *desktop = new CellWidget(desktopThumb, this);
    desktop->setObjectName(QStringLiteral("desktopThumb"));
    desktop->setFixedSize(grid::CellWidth - Margin, grid::CellHeight);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, CellBottom - grid::CellHeight, Margin, Margin);
    column->setSpacing(8);
    column->addWidget(desktop);
    column->addWidget(m_nextChange);
    column->addWidget(m_keepButton);
    column->addSpacing(4);
    column->addWidget(makeLongDate(datePicker, this));
    column->addWidget(makeDateRow(datePicker, actions));
    QToolButton *today = makeButton(QStringLiteral("todayButton"), actions.today, this);
    today->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    column->addWidget(today, 0, Qt::AlignHCenter);
    column->addStretch(1);
    column->addWidget(m_newsButton);
}

QWidget *SideBar::makeDateRow(DatePicker &datePicker, const DateActions &actions)
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(makeButton(QStringLiteral("prevDayButton"), actions.previousDay, row));
    layout->addWidget(new DatePickerWidget(datePicker, row), 1);
    layout->addWidget(makeButton(QStringLiteral("nextDayButton"), actions.nextDay, row));
    return row;
}

void SideBar::setNextChange(const QString &text)
{
    m_nextChange->setText(text);
    m_nextChange->setVisible(!text.isEmpty());
}

void SideBar::setKeepButtonVisible(bool visible)
{
    m_keepButton->setVisible(visible);
}

void SideBar::setNewsButtonVisible(bool visible)
{
    m_newsButton->setVisible(visible);
}

} // namespace moravel
