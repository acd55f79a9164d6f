// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/population.h"

#include "demo/family/calendar.h"
#include "demo/family/names.h"
#include "platform/basic/error.h"
#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

namespace {

constexpr int LastBirthYear = 2005;
constexpr int Year = 365;
constexpr int OldFamilies = 12;
constexpr int OldBranches = 8 * OldFamilies;

/// A value for each of some years; between them it is interpolated.
template <typename Row, std::size_t Count, typename Value>
int interpolated(const std::array<Row, Count> &rows, int year, Value value)
{
    std::size_t next = 1;
    while (next + 1 < Count && rows[next].year <= year)
        ++next;
    const Row &before = rows[next - 1];
    const Row &after = rows[next];
    const int passed = std::clamp(year, before.year, after.year) - before.year;
    return value(before) + (value(after) - value(before)) * passed / (after.year - before.year);
}

/// How the births spread over the years: many ancestors of few persons are known, fewer the further back.
struct Births {
    int year, weight;
};
constexpr std::array<Births, 8> BirthWeights = {
    {{1500, 10}, {1600, 22}, {1700, 50}, {1800, 100}, {1890, 175}, {1930, 150}, {1965, 120}, {2006, 40}}};

// How many of 10,000 births live on at each age, by year of birth. Rounded from what parish-register studies and the
// German life tables since 1871 report.
constexpr std::array Ages = {0,         1,         8,         Year,      5 * Year,  15 * Year,  30 * Year,
                             45 * Year, 60 * Year, 70 * Year, 80 * Year, 90 * Year, 100 * Year, 107 * Year};
struct LifeTable {
    int year;
    std::array<int, Ages.size()> alive;
};
constexpr std::array<LifeTable, 7> LifeTables = {{
    {1500, {10000, 9750, 9450, 7600, 6300, 5700, 4900, 3900, 2500, 1400, 450, 50, 2, 0}},
    {1750, {10000, 9760, 9480, 7700, 6450, 5900, 5150, 4200, 2900, 1750, 600, 70, 3, 0}},
    {1850, {10000, 9780, 9520, 7750, 6700, 6250, 5600, 4750, 3500, 2300, 850, 110, 5, 0}},
    {1900, {10000, 9800, 9600, 8300, 7700, 7450, 6950, 6300, 5200, 3900, 1800, 300, 12, 0}},
    {1930, {10000, 9850, 9720, 9150, 8950, 8850, 8600, 8200, 7200, 5900, 3600, 1000, 60, 0}},
    {1960, {10000, 9920, 9850, 9650, 9610, 9580, 9480, 9250, 8600, 7700, 5800, 2600, 260, 0}},
    {2000, {10000, 9960, 9940, 9920, 9915, 9905, 9850, 9750, 9350, 8800, 7500, 4800, 1000, 0}},
}};

struct War {
    int firstYear, lastYear;
    int fallen; ///< of 10,000 men between 17 and 45
};
constexpr War Wars[] = {
    {1618, 1648, 1000}, {1756, 1763, 350}, {1805, 1815, 500}, {1914, 1918, 1300}, {1939, 1945, 1900}};

/// The day of death of somebody born on that day; the day of birth itself for a stillborn child.
int drawDeath(int birth, bool woman, Random &random)
{
    const int year = yearOf(birth);
    const auto alive = [year](std::size_t age) {
        return interpolated(LifeTables, year, [age](const LifeTable &table) { return table.alive[age]; });
    };
    int rank = random.below(10000);
    // Of those who grow up, women outlive men.
    if (woman && rank < alive(5))
        rank -= rank / 12;
    std::size_t age = 1;
    while (alive(age) > rank)
        ++age;
    int death = age == 1 ? birth : birth + random.between(Ages[age - 1], Ages[age] - 1);
    for (const War &war : Wars) {
        const int first = std::max(dayOf(war.firstYear), birth + 17 * Year);
        const int last = std::min({dayOf(war.lastYear, 12, 31), birth + 45 * Year, death});
        if (!woman && first < last && random.chance(war.fallen))
            death = random.between(first, last);
    }
    return death;
}

class Simulation {
public:
    Simulation(int persons, Random &random) : m_wanted(persons), m_random(random)
    {
        m_all.persons.reserve(static_cast<std::size_t>(persons));
    }
    Population run(const basic::Progress &progress);

private:
    struct Birth {
        int day;
        std::int32_t couple;
    };
    Person &person(std::int32_t index) { return m_all.persons[static_cast<std::size_t>(index)]; }
    void weddings(int year);
    bool marry(std::int32_t man, std::int32_t woman, int year);
    void look(std::int32_t single, int year);
    void births(int year, int count);
    void bear(int day, std::int32_t couple);
    void giveNames(Person &child);

    static constexpr std::size_t Years = 800; ///< from FirstYear on
    static constexpr int FirstYear = 1400;
    static std::size_t at(int year) { return static_cast<std::size_t>(year - FirstYear); }

    int m_wanted;
    Random &m_random;
    int m_strangers = 0;
    Population m_all;
    std::array<std::vector<std::int32_t>, Years> m_singles; ///< who looks for a spouse, by year
    std::array<std::vector<Birth>, Years> m_births;         ///< children that couples can have, by year
};

Population Simulation::run(const basic::Progress &progress)
{
    // Few persons make no five centuries: they live closer together.
    const int firstYear = m_wanted >= 1000 ? 1500 : 1750 - m_wanted / 4;
    const auto weightOf = [](int year) {
        return interpolated(BirthWeights, year, [](const Births &births) { return births.weight; });
    };
    qint64 total = 0;
    for (int year = firstYear; year <= LastBirthYear; ++year)
        total += weightOf(year);
    qint64 weight = 0;
    for (int year = firstYear; year <= LastBirthYear; ++year) {
        weddings(year);
        weight += weightOf(year);
        births(year, static_cast<int>(m_wanted * weight / total - qint64(m_all.persons.size())));
        if (progress && !progress(qint64(m_all.persons.size()), 2 * qint64(m_wanted)))
            throw basic::Error(basic::Fault::StoppedDemo);
    }
    return std::move(m_all);
}

void Simulation::weddings(int year)
{
    std::vector<std::int32_t> men, women;
    for (const std::int32_t single : std::exchange(m_singles[at(year)], {}))
        (person(single).woman ? women : men).push_back(single);
    for (std::size_t i = men.size(); i > 1; --i)
        std::swap(men[i - 1], men[static_cast<std::size_t>(m_random.below(static_cast<int>(i)))]);
    for (std::size_t i = 0; i < std::max(men.size(), women.size()); ++i) {
        if (i < men.size() && i < women.size() && marry(men[i], women[i], year))
            continue;
        if (i < men.size())
            look(men[i], year + 1);
        if (i < women.size())
            look(women[i], year + 1);
    }
}

/// Whoever lives then and is young enough looks for a spouse.
void Simulation::look(std::int32_t single, int year)
{
    const Person &who = person(single);
    if (who.death > dayOf(year) && dayOf(year) - who.birth < (who.woman ? 44 : 55) * Year)
        m_singles[at(year)].push_back(single);
}

bool Simulation::marry(std::int32_t man, std::int32_t woman, int year)
{
    Person &husband = person(man);
    Person &wife = person(woman);
    const int older = wife.birth - husband.birth;
    const int wedding = dayOf(year) + m_random.below(Year);
    const int end = std::min(husband.death, wife.death);
    if ((husband.mother >= 0 && husband.mother == wife.mother) || older < -8 * Year || older > 22 * Year ||
        end < wedding + 14)
        return false;
    const auto couple = static_cast<std::int32_t>(m_all.couples.size());
    m_all.couples.push_back({man, woman, wedding});
    for (Person *one : {&husband, &wife}) {
        if (one->family < 0)
            one->family = couple;
    }
    const int most = year < 1880 ? m_random.between(2, 14) : m_random.between(1, year < 1930 ? 8 : 5);
    const int last = std::min(end, wife.birth + 46 * Year);
    int day = wedding + m_random.between(30, 600);
    for (int child = 0; child < most && day < last; ++child, day += m_random.between(330, 1100))
        m_births[at(yearOf(day))].push_back({day, couple});
    // Who is left may marry again.
    if (const bool widow = wife.death > husband.death; m_random.chance(widow ? 4000 : 7000))
        look(widow ? woman : man, yearOf(end) + 1);
    return true;
}

/// So many births of the year are known: of couples as far as there are any, else of strangers.
void Simulation::births(int year, int count)
{
    std::vector<Birth> possible = std::exchange(m_births[at(year)], {});
    for (int i = 0; i < count; ++i) {
        Birth birth{dayOf(year) + m_random.below(Year), -1};
        while (birth.couple < 0 && !possible.empty() && !m_random.chance(1000)) {
            std::swap(possible[static_cast<std::size_t>(m_random.below(static_cast<int>(possible.size())))],
                      possible.back());
            const Birth chosen = possible.back();
            possible.pop_back();
            if (person(m_all.couples[static_cast<std::size_t>(chosen.couple)].wife).death > chosen.day)
                birth = chosen;
        }
        bear(birth.day, birth.couple);
    }
}

void Simulation::bear(int day, std::int32_t couple)
{
    const int year = yearOf(day);
    Person child;
    child.birth = day;
    child.woman = m_random.chance(4870);
    child.death = drawDeath(day, child.woman, m_random);
    if (couple < 0) {
        // The oldest families have many branches, and the same surnames whatever the seed.
        child.surname =
            static_cast<std::uint16_t>(m_strangers < OldBranches ? m_strangers++ % OldFamilies : drawSurname(m_random));
        child.birthPlace = static_cast<std::uint16_t>(drawPlace(m_random));
    } else {
        const Couple &parents = m_all.couples[static_cast<std::size_t>(couple)];
        Person &mother = person(parents.wife);
        Person &father = person(parents.husband);
        child.family = couple;
        child.mother = parents.wife;
        mother.hasChildren = true;
        if (!m_random.chance(180)) { // else the register does not name him
            child.father = parents.husband;
            father.hasChildren = true;
        }
        child.surname = child.father >= 0 ? father.surname : mother.surname;
        child.birthPlace = m_random.chance(9400) ? father.birthPlace : static_cast<std::uint16_t>(drawPlace(m_random));
        if (m_random.chance(year < 1880 ? 80 : year < 1940 ? 35 : 3))
            mother.death = std::min(mother.death, day + m_random.below(20));
    }
    child.deathPlace = m_random.chance(child.death - day < 15 * Year ? 9500 : 5500)
                           ? child.birthPlace
                           : static_cast<std::uint16_t>(drawPlace(m_random));
    giveNames(child);
    const int wish = child.woman ? m_random.between(19, 30) : m_random.between(22, 35);
    const auto index = static_cast<std::int32_t>(m_all.persons.size());
    m_all.persons.push_back(child);
    if (child.death - day > (wish + 1) * Year && m_random.chance(8800))
        look(index, year + wish);
}

void Simulation::giveNames(Person &child)
{
    const int year = yearOf(child.birth);
    if (child.death == child.birth && m_random.chance(5000))
        return;
    child.givenCount = m_random.chance(year < 1650 ? 1500 : 5500) ? 2 : 1;
    for (std::uint16_t &name : child.given)
        name = static_cast<std::uint16_t>(drawGivenName(year, child.woman, m_random));
    // Many had the name of father or mother.
    const std::int32_t model = child.woman ? child.mother : child.father;
    if (model >= 0 && person(model).givenCount > 0 && m_random.chance(year < 1900 ? 2200 : 500))
        child.given[0] = person(model).given[0];
    if (child.given[0] == child.given[1])
        child.givenCount = 1;
}

} // namespace

Population makePopulation(int persons, Random &random, const basic::Progress &progress)
{
    return Simulation(persons, random).run(progress);
}

} // namespace kalvenor::demo
