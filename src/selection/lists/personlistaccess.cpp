// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/lists/personlistaccess.h"

#include "selection/lists/personlistview.h"
#include <QItemSelectionModel>
#include <QPointer>

namespace kalvenor::selection {

namespace {

/// One row; it speaks for whoever stands there.
class RowAccess : public QAccessibleInterface, public QAccessibleTableCellInterface, public QAccessibleActionInterface {
public:
    RowAccess(PersonListView &view, int row) : m_view(&view), m_row(row) {}

    bool isValid() const override { return m_view && m_row < m_view->model()->rowCount(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override { return QAccessible::queryAccessibleInterface(m_view); }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QString text(QAccessible::Text kind) const override
    {
        return isValid() && kind == QAccessible::Name ? index().data().toString() : QString();
    }
    void setText(QAccessible::Text, const QString &) override {}
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect rect = m_view->visualRect(index());
        return {m_view->viewport()->mapToGlobal(rect.topLeft()), rect.size()};
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.selectable = state.multiSelectable = state.focusable = true;
        if (!isValid())
            state.invalid = true;
        else if (!m_view->viewport()->rect().intersects(m_view->visualRect(index())))
            state.offscreen = true;
        state.selected = isSelected();
        state.focused = isValid() && m_view->hasFocus() && m_view->currentIndex().row() == m_row;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableCellInterface)
            return static_cast<QAccessibleTableCellInterface *>(this);
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
    }

    int columnExtent() const override { return 1; }
    QList<QAccessibleInterface *> columnHeaderCells() const override { return {}; }
    int columnIndex() const override { return 0; }
    int rowExtent() const override { return 1; }
    QList<QAccessibleInterface *> rowHeaderCells() const override { return {}; }
    int rowIndex() const override { return m_row; }
    bool isSelected() const override { return isValid() && m_view->selectionModel()->isSelected(index()); }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override { return {toggleAction()}; }
    void doAction(const QString &name) override
    {
        if (isValid() && name == toggleAction())
            m_view->selectionModel()->select(index(), QItemSelectionModel::Toggle);
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QModelIndex index() const { return m_view->model()->index(m_row, 0); }

    QPointer<PersonListView> m_view;
    int m_row;
};

QAccessibleInterface *makeAccess(const QString &, QObject *object)
{
    auto *view = qobject_cast<PersonListView *>(object);
    return view == nullptr ? nullptr : new PersonListAccess(*view);
}

} // namespace

PersonListAccess::PersonListAccess(PersonListView &view) : QAccessibleWidget(&view, QAccessible::List), m_view(view)
{
}

PersonListAccess::~PersonListAccess()
{
    forgetRows();
}

void PersonListAccess::install()
{
    static const bool installed = (QAccessible::installFactory(makeAccess), true);
    Q_UNUSED(installed)
}

void PersonListAccess::forgetRows()
{
    for (const QAccessible::Id id : std::as_const(m_rows))
        QAccessible::deleteAccessibleInterface(id);
    m_rows.clear();
}

QAccessibleInterface *PersonListAccess::child(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    auto known = m_rows.constFind(row);
    if (known == m_rows.constEnd())
        known = m_rows.insert(row, QAccessible::registerAccessibleInterface(new RowAccess(m_view, row)));
    return QAccessible::accessibleInterface(*known);
}

int PersonListAccess::indexOfChild(const QAccessibleInterface *child) const
{
    const auto *row = dynamic_cast<const RowAccess *>(child);
    return row == nullptr ? -1 : row->rowIndex();
}

QAccessibleInterface *PersonListAccess::childAt(int x, int y) const
{
    const QModelIndex index = m_view.indexAt(m_view.viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? child(index.row()) : nullptr;
}

QAccessibleInterface *PersonListAccess::focusChild() const
{
    return m_view.hasFocus() && m_view.currentIndex().isValid() ? child(m_view.currentIndex().row()) : nullptr;
}

void *PersonListAccess::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface *>(this)
                                               : QAccessibleWidget::interface_cast(type);
}

QList<QAccessibleInterface *> PersonListAccess::selectedCells() const
{
    QList<QAccessibleInterface *> cells;
    for (const int row : selectedRows())
        cells << child(row);
    return cells;
}

int PersonListAccess::selectedRowCount() const
{
    return static_cast<int>(m_view.selectedCount());
}

int PersonListAccess::rowCount() const
{
    return m_view.model()->rowCount();
}

QList<int> PersonListAccess::selectedRows() const
{
    QList<int> rows;
    for (const QItemSelectionRange &range : m_view.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows << row;
    }
    return rows;
}

bool PersonListAccess::isRowSelected(int row) const
{
    return m_view.selectionModel()->isSelected(m_view.model()->index(row, 0));
}

bool PersonListAccess::selectRow(int row)
{
    const QModelIndex index = m_view.model()->index(row, 0);
    m_view.selectionModel()->select(index, QItemSelectionModel::Select);
    return index.isValid();
}

bool PersonListAccess::unselectRow(int row)
{
    const QModelIndex index = m_view.model()->index(row, 0);
    m_view.selectionModel()->select(index, QItemSelectionModel::Deselect);
    return index.isValid();
}

void PersonListAccess::modelChange(QAccessibleTableModelChangeEvent *event)
{
    if (event->modelChangeType() == QAccessibleTableModelChangeEvent::ModelReset)
        forgetRows();
}

} // namespace kalvenor::selection
