// SPDX-License-Identifier: MIT
#include "mainwindow/Accessibility.h"

#include <QAccessibleWidget>
#include <QWidget>

#include <algorithm>
#include <iterator>

namespace moravel {

namespace {

/// Says that something is under way.
class BusyWidget : public QAccessibleWidget
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = true;
        return state;
    }
};

struct Row
{
    const char *className;
    QAccessible::Role role;
};

// Qt takes a widget that it does not know for one of nothing in particular.
constexpr Row Roles[] = {
    {"moravel::CaptionLabel", QAccessible::StaticText},
    {"moravel::CellButtonBar", QAccessible::ToolBar},
    {"moravel::CellNotice", QAccessible::StaticText},
    {"moravel::CellWidget", QAccessible::Grouping},
    {"moravel::LargeImageView", QAccessible::Graphic},
    {"moravel::PictureView", QAccessible::Graphic},
    {"moravel::Spinner", QAccessible::Animation},
};

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    const auto row = std::find_if(std::begin(Roles), std::end(Roles), [&](const Row &one) {
        return className == QLatin1String(one.className);
    });
    if (row == std::end(Roles) || !object || !object->isWidgetType())
        return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    if (row->role == QAccessible::Animation)
        return new BusyWidget(widget, row->role);
    return new QAccessibleWidget(widget, row->role);
}

} // namespace

void installAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace moravel
