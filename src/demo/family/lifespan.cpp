// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/lifespan.h"

#include "demo/family/calendar.h"
#include <algorithm>
#include <array>
#include <cstddef>

namespace kalvenor::demo {

namespace {

// How many of 10,000 births live on at each age, for some years of birth. Rounded from what parish-register studies
// and the German life tables since 1871 report; lives between two listed years are interpolated.
constexpr std::array<int, 14> Ages = {0,        1,        8,        365,      5 * 365,  15 * 365,  30 * 365,
                                      45 * 365, 60 * 365, 70 * 365, 80 * 365, 90 * 365, 100 * 365, 107 * 365};
struct Survivors {
    int year;
    std::array<int, 14> alive;
};
constexpr std::array<Survivors, 7> LifeTables = {{
    {1500, {10000, 9750, 9450, 7600, 6300, 5700, 4900, 3900, 2500, 1400, 450, 50, 2, 0}},
    {1750, {10000, 9760, 9480, 7700, 6450, 5900, 5150, 4200, 2900, 1750, 600, 70, 3, 0}},
    {1850, {10000, 9780, 9520, 7750, 6700, 6250, 5600, 4750, 3500, 2300, 850, 110, 5, 0}},
    {1900, {10000, 9800, 9600, 8300, 7700, 7450, 6950, 6300, 5200, 3900, 1800, 300, 12, 0}},
    {1930, {10000, 9850, 9720, 9150, 8950, 8850, 8600, 8200, 7200, 5900, 3600, 1000, 60, 0}},
    {1960, {10000, 9920, 9850, 9650, 9610, 9580, 9480, 9250, 8600, 7700, 5800, 2600, 260, 0}},
    {2000, {10000, 9960, 9940, 9920, 9915, 9905, 9850, 9750, 9350, 8800, 7500, 4800, 1000, 0}},
}};

struct Crisis {
    int firstYear;
    int lastYear;
    int soldiers; ///< of 10,000 men between 17 and 45
    int others;   ///< of 10,000 of everybody else
};
constexpr std::array<Crisis, 12> Crises = {{{1524, 1526, 150, 20},
                                            {1565, 1567, 120, 150},
                                            {1618, 1633, 500, 250},
                                            {1634, 1636, 300, 900},
                                            {1637, 1648, 400, 250},
                                            {1709, 1713, 150, 300},
                                            {1756, 1763, 350, 120},
                                            {1805, 1815, 500, 130},
                                            {1831, 1832, 60, 90},
                                            {1866, 1871, 200, 60},
                                            {1914, 1919, 1300, 120},
                                            {1939, 1945, 1900, 350}}};

std::array<int, 14> survivorsOf(int year)
{
    if (year <= LifeTables.front().year)
        return LifeTables.front().alive;
    std::size_t next = 1;
    while (next + 1 < LifeTables.size() && LifeTables[next].year < year)
        ++next;
    const Survivors &before = LifeTables[next - 1];
    const Survivors &after = LifeTables[next];
    const int passed = std::min(year, after.year) - before.year;
    std::array<int, 14> alive{};
    for (std::size_t i = 0; i < alive.size(); ++i)
        alive[i] = before.alive[i] + (after.alive[i] - before.alive[i]) * passed / (after.year - before.year);
    return alive;
}

int naturalDeath(int birth, bool woman, Random &random)
{
    const auto alive = survivorsOf(yearOf(birth));
    int rank = random.below(10000);
    // Of those who grow up, women outlive men.
    if (woman && rank < alive[5])
        rank -= rank / 12;
    std::size_t age = 1;
    while (alive[age] > rank)
        ++age;
    if (age == 1)
        return birth;
    return birth + random.between(Ages[age - 1], Ages[age] - 1);
}

} // namespace

int drawDeath(int birth, bool woman, Random &random)
{
    int death = naturalDeath(birth, woman, random);
    for (const Crisis &crisis : Crises) {
        const int begin = dayOf(crisis.firstYear);
        const int end = dayOf(crisis.lastYear, 12, 31);
        if (death < begin || birth > end)
            continue;
        const int first = std::max(begin, birth + 17 * 365);
        const int last = std::min(end, birth + 45 * 365);
        const bool soldier = !woman && first <= last;
        if (!random.chance(soldier ? crisis.soldiers : crisis.others))
            continue;
        death = std::min(death, soldier ? random.between(first, last) : random.between(std::max(begin, birth), end));
    }
    return death;
}

int childbedDeaths(int year)
{
    if (year < 1880)
        return 80;
    return year < 1940 ? 35 : 3;
}

} // namespace kalvenor::demo
