// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/family/random.h"
#include <QString>

// Names of persons and places by number. All characters are of Windows-1252.
namespace kalvenor::demo {

/// The numbers of the names that were usual in a year, the most frequent first.
struct GivenNames {
    int first;
    int count;
};
GivenNames givenNames(int year, bool woman);
int givenNameCount();
const QString &givenName(int number);
bool isWomansName(int number);

int surnameCount();
/// A family's name: mostly a common one, now and then one with a particle, a hyphen or an apostrophe.
int drawSurname(Random &random);
const QString &surname(int number);

struct Place {
    QString name;
    double latitude;
    double longitude;
    const char16_t *country;
};
int placeCount();
const Place &place(int number);

} // namespace kalvenor::demo
