// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/family/random.h"
#include <QString>

// Names of persons and places by number, all of Windows-1252. Frequent ones are drawn more often.
namespace kalvenor::demo {

/// One that was usual in that year.
int drawGivenName(int year, bool woman, Random &random);
const QString &givenName(int number);

/// Now and then one with a particle, a hyphen or an apostrophe.
int drawSurname(Random &random);
const QString &surname(int number);

int drawPlace(Random &random);
const QString &place(int number);

} // namespace kalvenor::demo
