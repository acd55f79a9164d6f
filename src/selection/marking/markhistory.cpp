// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/marking/markhistory.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

namespace {

void setMarks(data::Datenbankmodul &databases, const std::vector<qint32> &marked, const std::vector<qint32> &unmarked,
              const basic::Progress &progress)
{
    const QString table = u"Daten"_s;
    if (!unmarked.empty())
        databases.Familiendatenbank->setMarks(table, unmarked, false, progress);
    if (!marked.empty())
        databases.Familiendatenbank->setMarks(table, marked, true, progress);
}

} // namespace

void MarkHistory::record(MarkStep step)
{
    if (step.isEmpty())
        return;
    m_steps.resize(m_done);
    m_steps.push_back(std::move(step));
    m_done = m_steps.size();
}

void MarkHistory::undo(data::Datenbankmodul &databases, const basic::Progress &progress)
{
    if (!canUndo())
        return;
    const MarkStep &step = m_steps[m_done - 1];
    setMarks(databases, step.unmarked, step.marked, progress);
    --m_done;
}

void MarkHistory::redo(data::Datenbankmodul &databases, const basic::Progress &progress)
{
    if (!canRedo())
        return;
    const MarkStep &step = m_steps[m_done];
    setMarks(databases, step.marked, step.unmarked, progress);
    ++m_done;
}

void MarkHistory::clear()
{
    m_steps.clear();
    m_done = 0;
}

} // namespace kalvenor::selection
