// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/family/population.h"
#include "platform/basic/progress.h"
#include <QString>
#include <vector>

namespace kalvenor::demo {

/// A person for whom the host has already printed a page.
struct PrintedPerson {
    int counter;
    bool woman;
    QString name;
    QString born;
    QString died;
    QString place;
};

/// Writes the family database (all its tables) and returns some persons with exact dates of birth and death.
std::vector<PrintedPerson> writeFamilyDatabase(const QString &file, const Population &population, Random &random,
                                               const basic::Progress &progress);

} // namespace kalvenor::demo
