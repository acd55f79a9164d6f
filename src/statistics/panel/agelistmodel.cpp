// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/agelistmodel.h"

#include <algorithm>

namespace kalvenor::statistics {

AgeListModel::AgeListModel(const Altersliste &list, QObject *parent)
    : QAbstractListModel(parent), m_list(list), m_rows(static_cast<int>(list.size()))
{
}

void AgeListModel::clear()
{
    beginResetModel();
    m_rows = 0;
    m_lines.reset();
    endResetModel();
}

void AgeListModel::showOnly(std::vector<qint32> counters)
{
    std::sort(counters.begin(), counters.end());
    beginResetModel();
    m_lines.emplace();
    for (std::size_t line = 0; line < m_list.size(); ++line) {
        if (std::binary_search(counters.begin(), counters.end(), m_list[line].Counter))
            m_lines->push_back(static_cast<int>(line));
    }
    m_rows = static_cast<int>(m_lines->size());
    endResetModel();
}

void AgeListModel::showAll()
{
    beginResetModel();
    m_lines.reset();
    m_rows = static_cast<int>(m_list.size());
    endResetModel();
}

const Alterszeile &AgeListModel::lineAt(int row) const
{
    const auto place = static_cast<std::size_t>(row);
    return m_list[m_lines ? static_cast<std::size_t>((*m_lines)[place]) : place];
}

void AgeListModel::grow()
{
    const int rows = static_cast<int>(m_list.size());
    if (rows <= m_rows || m_lines)
        return;
    beginInsertRows({}, m_rows, rows - 1);
    m_rows = rows;
    endInsertRows();
}

QVariant AgeListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows)
        return {};
    const Alterszeile &line = lineAt(index.row());
    if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
        return line.text();
    return role == Qt::UserRole ? QVariant(line.Counter) : QVariant();
}

} // namespace kalvenor::statistics
