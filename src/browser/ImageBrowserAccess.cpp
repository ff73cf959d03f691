// SPDX-License-Identifier: MIT
#include "browser/ImageBrowserAccess.h"

#include "browser/ImageBrowserView.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace moravel {

namespace {

/// One picture. It names its item by the number alone, so it dies when the model is another.
class ItemAccess : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    ItemAccess(ImageBrowserView *view, int row) : m_view(view), m_row(row) { }

    bool isValid() const override { return m_view && index().isValid(); }

    QObject *object() const override { return nullptr; }

    QWindow *window() const override { return m_view->window()->windowHandle(); }

    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_view);
    }

    QAccessibleInterface *child(int) const override { return nullptr; }

    QAccessibleInterface *childAt(int, int) const override { return nullptr; }

    int childCount() const override { return 0; }

    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QAccessible::Role role() const override { return QAccessible::ListItem; }

    void setText(QAccessible::Text, const QString &) override { }

    QRect rect() const override
    {
        const QRect cell = m_view->visualRect(index());
        return {m_view->viewport()->mapToGlobal(cell.topLeft()), cell.size()};
    }

    QString text(QAccessible::Text what) const override
    {
        return what == QAccessible::Name ? index().data(Qt::AccessibleTextRole).toString()
                                         : QString();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.selectable = true;
        state.focusable = true;
        state.selected = m_view->selectionModel()->isSelected(index());
        state.focused = m_view->hasFocus() && m_view->currentIndex() == index();
        state.offscreen = !m_view->viewport()->rect().intersects(m_view->visualRect(index()));
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
            ? static_cast<QAccessibleActionInterface *>(this)
            : nullptr;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString &action) override
    {
        m_view->setCurrentIndex(index());
        if (action == pressAction())
            Q_EMIT m_view->openWanted();
    }

    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QModelIndex index() const { return m_view->model()->index(m_row, 0); }

    QPointer<ImageBrowserView> m_view;
    int m_row;
};

/// The list. Items are made when they are asked for: there can be a hundred thousand.
class ListAccess : public QAccessibleWidget
{
public:
    explicit ListAccess(ImageBrowserView *view)
        : QAccessibleWidget(view, QAccessible::List), m_view(view)
    {
        const auto *model = view->model();
        m_reset = QObject::connect(model, &QAbstractItemModel::modelReset, view,
                                   [this] { forgetItems(); });
    }

    ~ListAccess() override
    {
        QObject::disconnect(m_reset);
        forgetItems();
    }

    int childCount() const override { return m_view->model()->rowCount(); }

    QAccessibleInterface *child(int row) const override
    {
        if (row < 0 || row >= childCount())
            return nullptr;
        const auto known = m_items.constFind(row);
        if (known != m_items.constEnd())
            return QAccessible::accessibleInterface(*known);
        auto *item = new ItemAccess(m_view, row);
        m_items.insert(row, QAccessible::registerAccessibleInterface(item));
        return item;
    }

    QAccessibleInterface *childAt(int x, int y) const override
    {
        return child(m_view->indexAt(m_view->viewport()->mapFromGlobal(QPoint(x, y))).row());
    }

    QAccessibleInterface *focusChild() const override
    {
        return m_view->hasFocus() ? child(m_view->currentIndex().row()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface *item) const override
    {
        const auto id = QAccessible::uniqueId(const_cast<QAccessibleInterface *>(item));
        return m_items.key(id, -1);
    }

private:
    void forgetItems()
    {
        for (const QAccessible::Id id : std::as_const(m_items))
            QAccessible::deleteAccessibleInterface(id);
        m_items.clear();
    }

    ImageBrowserView *m_view;
    QMetaObject::Connection m_reset;
    mutable QHash<int, QAccessible::Id> m_items;
};

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    auto *view = qobject_cast<ImageBrowserView *>(object);
    const bool isReady = view && view->model();
    return isReady && className == QLatin1String("moravel::ImageBrowserView") ? new ListAccess(view)
                                                                              : nullptr;
}

} // namespace

void installBrowserAccessibility()
{
    QAccessible::installFactory(makeInterface);
}

} // namespace moravel
