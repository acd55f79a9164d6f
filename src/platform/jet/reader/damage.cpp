// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/damage.h"

#include <algorithm>
#include <QHashFunctions>

namespace kalvenor::jet {

namespace {

constexpr std::size_t MostExamples = 3;
constexpr std::size_t MostPlaces = 1'000'000; ///< remembered, and so counted

} // namespace

Damage &DamageLog::kindOf(const basic::Place &file, basic::Fault fault)
{
    const auto found =
        std::ranges::find_if(m_kinds, [&](const Damage &kind) { return kind.fault == fault && kind.place == file; });
    return found != m_kinds.end() ? *found : m_kinds.emplace_back(Damage{file, fault});
}

void DamageLog::note(const basic::Place &file, qint64 page, basic::Fault fault, std::vector<basic::Argument> arguments)
{
    std::size_t met = qHashMulti(0, static_cast<int>(fault), page, file.table);
    for (const basic::Argument &argument : arguments)
        met = qHashMulti(met, argument.text, static_cast<int>(argument.word));
    if (m_met.size() >= MostPlaces || !m_met.insert(met).second)
        return;
    Damage &kind = kindOf(file, fault);
    ++kind.count;
    if (kind.examples.size() < MostExamples)
        kind.examples.emplace_back(fault, basic::Place{.page = page}, std::move(arguments));
}

void DamageLog::note(const Damage &damage)
{
    m_kinds.push_back(damage);
}

} // namespace kalvenor::jet
