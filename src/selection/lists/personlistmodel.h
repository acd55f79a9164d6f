// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/dao/recordset.h"
#include "selection/lists/listquery.h"
#include <memory>
#include <QAbstractListModel>
#include <span>
#include <vector>

namespace kalvenor::selection {

/// The persons of one list, shown by `Listname`. A view on the rows that the list's query gave; nothing is copied per
/// person. Persons dragged from the other list's model can be dropped on it.
class PersonListModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { CounterRole = Qt::UserRole };

    explicit PersonListModel(PersonList list, QObject *parent = nullptr);
    ~PersonListModel() override;

    /// Shows another result of the list's query; nothing empties the list. Throws ColumnNotFound, and then shows what
    /// it did.
    void show(std::shared_ptr<dao::Recordset> persons);

    PersonList list() const { return m_list; }
    const std::shared_ptr<dao::Recordset> &persons() const { return m_persons; }
    /// The rows of the person table, as dao::Recordset::rows() counts them; none where they were computed.
    std::span<const quint32> tableRows() const { return m_rows; }
    /// The other one counts in the same rows of the person table.
    bool countsIn(const dao::Recordset &other) const { return m_persons && m_persons->countsIn(other); }
    /// Persons in the table; 0 where nothing is shown.
    qint64 personCount() const { return m_persons ? m_persons->tableRowCount() : 0; }
    qint32 counterAt(int row) const;
    QString nameAt(int row) const;
    /// The first person whose name begins with what was typed, without regard to case, accents and punctuation; -1
    /// where there is none. The list must be in the order of its names.
    int findName(const QString &typed) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    Qt::DropActions supportedDragActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    QMimeData *mimeDataOf(const std::vector<qint32> &counters) const;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    /// Changes nothing by itself: says by dropped() whom to move here.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

Q_SIGNALS:
    /// `before` is what was shown until now.
    void replaced(const std::shared_ptr<dao::Recordset> &before);
    void dropped(const std::vector<qint32> &counters);

private:
    PersonList m_list;
    std::shared_ptr<dao::Recordset> m_persons;
    std::span<const quint32> m_rows;
    int m_count = 0;
    int m_counter = -1; ///< fields of m_persons
    int m_listname = -1;
};

} // namespace kalvenor::selection
