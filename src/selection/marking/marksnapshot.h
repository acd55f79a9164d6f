// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/marking/markhistory.h"
#include <memory>
#include <vector>

namespace kalvenor::jet {
class Table;
}

namespace kalvenor::selection {

/// The marks of all persons at one moment, one bit each. Tells what an action changed that ended half-way.
class MarkSnapshot {
public:
    explicit MarkSnapshot(const data::Datenbankmodul &databases);
    /// By the state that is in memory now. Persons that came or went meanwhile are left out.
    MarkStep changesSince(const data::Datenbankmodul &databases) const;

private:
    std::shared_ptr<const jet::Table> m_table;
    std::vector<bool> m_marks;
};

} // namespace kalvenor::selection
