// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>
#include <QHash>

namespace kalvenor::selection {

class PersonListView;

/// The list for screen readers: a list of rows with names, selection and position. A row gets an interface when it is
/// asked for, so a million rows cost nothing.
class PersonListAccess : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit PersonListAccess(PersonListView &view);
    ~PersonListAccess() override;

    /// Lets Qt find this interface for each PersonListView.
    static void install();

    int childCount() const override { return rowCount(); }
    QAccessibleInterface *child(int row) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override { return column == 0 ? child(row) : nullptr; }
    int selectedCellCount() const override { return selectedRowCount(); }
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int) const override { return {}; }
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override;
    int columnCount() const override { return 1; }
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int) override { return false; }
    bool unselectRow(int row) override;
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

private:
    void forgetRows();

    PersonListView &m_view;
    mutable QHash<int, QAccessible::Id> m_rows; ///< those that were asked for
};

} // namespace kalvenor::selection
