// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/creator/creator_table.h"
#include <cstdint>
#include <memory>
#include <vector>

namespace kalvenor::jet::creating {

/// The header, the four system tables and the rows that a database must have. Takes the first ten pages of the store.
class SystemTables {
public:
    explicit SystemTables(PageStore &store);

    /// True for a name that a system table has (as the catalogue's index compares).
    bool hasName(QStringView name) const;
    /// Fills the catalogue with the user's tables; once.
    void addRows(const std::vector<const TableBuilder *> &userTables);
    void finish();

private:
    std::vector<std::unique_ptr<TableBuilder>> m_tables;
};

/// Fills the header page, as it stands in the file. `encodingKey` 0 means plain pages.
void fillHeaderPage(std::uint8_t *page, std::uint32_t encodingKey);

} // namespace kalvenor::jet::creating
