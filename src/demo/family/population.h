// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/family/random.h"
#include "platform/basic/progress.h"
#include <cstdint>
#include <vector>

namespace kalvenor::demo {

/// A life as it was, before anybody wrote it down. Persons and couples are named by their index; -1 is nobody.
struct Person {
    std::int32_t birth = 0;
    std::int32_t death = 0; ///< may lie in the future
    std::int32_t father = -1;
    std::int32_t mother = -1;
    std::int32_t family = -1; ///< the couple of the parents, else the own one
    std::uint16_t surname = 0;
    std::uint16_t given[2] = {};
    std::uint16_t birthPlace = 0;
    std::uint16_t deathPlace = 0;
    std::uint8_t givenCount = 0;
    bool woman = false;
    bool hasChildren = false;
};

struct Couple {
    std::int32_t husband = -1;
    std::int32_t wife = -1;
    std::int32_t wedding = 0;
};

struct Population {
    std::vector<Person> persons; ///< by year of birth; parents stand before their children
    std::vector<Couple> couples; ///< by year of wedding
};

/// Lets that many persons be born between about 1500 and 2005, marry, have children and die. Infant mortality and wars
/// follow the centuries. Throws Error(Cancelled).
Population makePopulation(int persons, Random &random, const basic::Progress &progress = {});

} // namespace kalvenor::demo
