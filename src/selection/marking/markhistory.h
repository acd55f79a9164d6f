// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include <vector>

namespace kalvenor::selection {

/// What one user action changed, by `Counter`.
using MarkStep = dao::MarkDifference;

/// All marks set since the program started, to be taken back and set again, exactly the rows that changed.
class MarkHistory {
public:
    /// A step done just now; what was undone before it can no longer be redone. An empty step is not kept.
    void record(MarkStep step);
    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < m_steps.size(); }
    /// Takes back or repeats one step. A person that is gone meanwhile is passed over. Throws the engine's Error; the
    /// step then counts as not taken, and can be tried again.
    void undo(data::Datenbankmodul &databases, const basic::Progress &progress = {});
    void redo(data::Datenbankmodul &databases, const basic::Progress &progress = {});
    void clear();

private:
    std::vector<MarkStep> m_steps;
    std::size_t m_done = 0;
};

} // namespace kalvenor::selection
