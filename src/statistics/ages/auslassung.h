// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "platform/basic/progress.h"
#include <QString>
#include <vector>

namespace kalvenor::statistics {

/// Why a marked person has no place in the statistic, or not in all of it.
enum class Auslassung { Geburt, Tod, GeburtUndTod, NichtNachGeburt, Geschlecht };

struct Ausgelassener {
    qint32 Counter = 0;
    Auslassung grund = Auslassung::Geburt;
    QString listname;
};

/// The marked persons without an age, because a date is not known or death not after birth, and those of unknown sex,
/// who count under "all" alone; in `Listname` order. Progress counts the marked persons. Throws Error(Cancelled) and
/// the engine's errors.
std::vector<Ausgelassener> auslassungen(data::Datenbankmodul &databases, const basic::Progress &progress = {});

} // namespace kalvenor::statistics
