// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/ages/altersliste.h"
#include <optional>
#include <QAbstractListModel>
#include <vector>

namespace kalvenor::statistics {

/// The age list for a view, all of it or some of its lines. The list may grow behind the model's back; its new lines
/// are shown with the next grow().
class AgeListModel : public QAbstractListModel {
    Q_OBJECT
public:
    explicit AgeListModel(const Altersliste &list, QObject *parent = nullptr);

    /// The list was emptied.
    void clear();
    void grow();
    /// Only these persons' lines are shown, until the list is emptied.
    void showOnly(std::vector<qint32> counters);
    void showAll();
    const Alterszeile &lineAt(int row) const;
    qint32 counterAt(int row) const { return lineAt(row).Counter; }

    int rowCount(const QModelIndex &parent = {}) const override { return parent.isValid() ? 0 : m_rows; }
    /// The item's data (Qt::UserRole) is the person's `Counter`.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    const Altersliste &m_list;
    int m_rows = 0;
    std::optional<std::vector<int>> m_lines; ///< those that are shown; nothing: all
};

} // namespace kalvenor::statistics
