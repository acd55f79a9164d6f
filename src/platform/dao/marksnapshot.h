// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/dao/bits.h"
#include <memory>
#include <vector>

namespace kalvenor::dao {

class TableView;

/// Keys (`Counter`) of the rows whose marks differ between two moments, in row order.
struct MarkDifference {
    std::vector<qint32> marked{};
    std::vector<qint32> unmarked{};
    bool isEmpty() const { return marked.empty() && unmarked.empty(); }
};

/// The marks of a table at one moment, a bit a row. Keeps the state of the file that its rows count in.
class MarkSnapshot {
public:
    MarkSnapshot(std::shared_ptr<TableView> view, Bits marks) : m_view(std::move(view)), m_marks(std::move(marks)) {}

    /// What changed from `before` on; the file may have been read anew meanwhile. Rows without a key, and rows that
    /// came or went, are left out.
    MarkDifference since(const MarkSnapshot &before) const;

private:
    std::shared_ptr<TableView> m_view;
    Bits m_marks;
};

} // namespace kalvenor::dao
