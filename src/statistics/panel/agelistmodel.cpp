// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/agelistmodel.h"

namespace kalvenor::statistics {

AgeListModel::AgeListModel(const Altersliste &list, QObject *parent)
    : QAbstractListModel(parent), m_list(list), m_rows(static_cast<int>(list.size()))
{
}

void AgeListModel::clear()
{
    beginResetModel();
    m_rows = 0;
    endResetModel();
}

void AgeListModel::grow()
{
    const int rows = static_cast<int>(m_list.size());
    if (rows <= m_rows)
        return;
    beginInsertRows({}, m_rows, rows - 1);
    m_rows = rows;
    endInsertRows();
}

QVariant AgeListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows)
        return {};
    const Alterszeile &line = m_list[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
        return line.text();
    return role == Qt::UserRole ? QVariant(line.Counter) : QVariant();
}

} // namespace kalvenor::statistics
