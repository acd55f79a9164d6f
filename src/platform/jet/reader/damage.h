// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include <unordered_set>
#include <vector>

namespace kalvenor::jet {

/// Damage of one kind that was passed over in a table (or, without a table's name, in the file).
struct Damage {
    basic::Place place; ///< file and table
    basic::Fault fault = basic::Fault::None;
    qint64 count = 0;                     ///< places where it was met
    std::vector<basic::Error> examples{}; ///< the first ones; their place is the page, where it is known
};

/// Notes damage, each place once however often it is met again.
class DamageLog {
public:
    void note(const basic::Place &file, qint64 page, basic::Fault fault, std::vector<basic::Argument> arguments = {});
    void note(const Damage &damage);
    const std::vector<Damage> &kinds() const { return m_kinds; }

private:
    Damage &kindOf(const basic::Place &file, basic::Fault fault);

    std::vector<Damage> m_kinds;
    std::unordered_set<std::size_t> m_met;
};

} // namespace kalvenor::jet
