// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/family/population.h"

#include "demo/family/calendar.h"
#include "demo/family/lifespan.h"
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

/// How the births spread over the years: many ancestors of few persons are known, fewer the further back.
struct Births {
    int year;
    int weight;
};
constexpr std::array<Births, 8> BirthWeights = {
    {{1500, 10}, {1600, 22}, {1700, 50}, {1800, 100}, {1890, 175}, {1930, 150}, {1965, 120}, {2006, 40}}};

int birthWeight(int inYear)
{
    std::size_t next = 1;
    while (BirthWeights[next].year <= inYear && next + 1 < BirthWeights.size())
        ++next;
    const Births &before = BirthWeights[next - 1];
    const Births &after = BirthWeights[next];
    return before.weight + (after.weight - before.weight) * (inYear - before.year) / (after.year - before.year);
}

struct OpenCouple {
    std::int32_t husband;
    std::int32_t wife;
    std::int32_t wedding;
    std::int32_t lastBirth;
    std::int32_t childrenLeft;
    std::uint16_t place;
};

class Simulation {
public:
    Simulation(int persons, Random &random, const basic::Progress &progress)
        : m_wanted(persons), m_random(random), m_progress(progress), m_marriageable(LastBirthYear + 60)
    {
        m_population.persons.reserve(static_cast<std::size_t>(persons));
    }

    Population run();

private:
    Person &person(std::int32_t index) { return m_population.persons[static_cast<std::size_t>(index)]; }
    std::vector<std::int32_t> &marriageable(int inYear) { return m_marriageable[static_cast<std::size_t>(inYear)]; }
    void weddings(int inYear);
    bool tryWedding(std::int32_t man, std::int32_t woman, int inYear);
    void keepLooking(std::int32_t index, int inYear);
    int pickCouple(int day);
    void dissolve(std::size_t couple, int inYear);
    void giveBirth(int day, int couple);
    void giveNames(Person &child, int inYear);

    int m_wanted;
    Random &m_random;
    const basic::Progress &m_progress;
    Population m_population;
    std::vector<OpenCouple> m_couples;
    std::vector<std::vector<std::int32_t>> m_marriageable; ///< by year
};

Population Simulation::run()
{
    // Few persons make no five centuries: they live closer together.
    const int firstYear = m_wanted >= 1000 ? 1500 : 1750 - m_wanted / 4;
    qint64 totalWeight = 0;
    for (int inYear = firstYear; inYear <= LastBirthYear; ++inYear)
        totalWeight += birthWeight(inYear);

    qint64 weight = 0;
    for (int inYear = firstYear; inYear <= LastBirthYear; ++inYear) {
        weddings(inYear);
        const qint64 before = m_wanted * weight / totalWeight;
        weight += birthWeight(inYear);
        const int births = static_cast<int>(m_wanted * weight / totalWeight - before);
        const int newYear = dayOf(inYear);
        for (int i = 0; i < births; ++i) {
            const int inTheYear = static_cast<int>(qint64(i) * Year / births) + m_random.below(Year / births + 1);
            const int day = newYear + std::min(inTheYear, Year - 1);
            const int couple = m_random.chance(1000) ? -1 : pickCouple(day);
            giveBirth(day, couple);
            if (couple >= 0 && i + 1 < births && m_random.chance(110)) { // twins
                giveBirth(m_population.persons.back().birth, couple);
                ++i;
            }
        }
        if (m_progress && !m_progress(qint64(m_population.persons.size()), 2 * qint64(m_wanted)))
            throw basic::Error(basic::Fault::StoppedDemo);
    }
    return std::move(m_population);
}

void Simulation::weddings(int inYear)
{
    std::vector<std::int32_t> men;
    std::vector<std::int32_t> women;
    for (const std::int32_t index : marriageable(inYear))
        (person(index).woman ? women : men).push_back(index);
    marriageable(inYear) = {};
    for (std::size_t i = men.size(); i > 1; --i)
        std::swap(men[i - 1], men[static_cast<std::size_t>(m_random.below(static_cast<int>(i)))]);

    const std::size_t pairs = std::min(men.size(), women.size());
    for (std::size_t i = 0; i < pairs; ++i) {
        if (!tryWedding(men[i], women[i], inYear)) {
            keepLooking(men[i], inYear);
            keepLooking(women[i], inYear);
        }
    }
    for (std::size_t i = pairs; i < men.size(); ++i)
        keepLooking(men[i], inYear);
    for (std::size_t i = pairs; i < women.size(); ++i)
        keepLooking(women[i], inYear);
}

bool Simulation::tryWedding(std::int32_t man, std::int32_t woman, int inYear)
{
    Person &groom = person(man);
    Person &bride = person(woman);
    const int older = bride.birth - groom.birth;
    const bool siblings = groom.mother >= 0 && groom.mother == bride.mother;
    const int wedding = dayOf(inYear) + m_random.below(Year);
    if (siblings || older < -8 * Year || older > 22 * Year || std::min(groom.death, bride.death) < wedding + 14)
        return false;
    groom.spouse = woman;
    bride.spouse = man;
    const int most = inYear < 1880 ? m_random.between(2, 14) : m_random.between(1, inYear < 1930 ? 8 : 5);
    m_couples.push_back({man, woman, wedding, wedding - Year, m_random.chance(700) ? 0 : most,
                         m_random.chance(6500) ? groom.birthPlace : bride.birthPlace});
    m_population.couples.push_back({man, woman, wedding});
    return true;
}

/// Whoever lives and is young enough looks again next year.
void Simulation::keepLooking(std::int32_t index, int inYear)
{
    const Person &single = person(index);
    if (single.death > dayOf(inYear + 1) && dayOf(inYear) - single.birth < (single.woman ? 44 : 55) * Year)
        marriageable(inYear + 1).push_back(index);
}

/// An open couple that can have a child on that day, or -1.
int Simulation::pickCouple(int day)
{
    for (int tries = 0; tries < 12 && !m_couples.empty(); ++tries) {
        const auto chosen = static_cast<std::size_t>(m_random.below(static_cast<int>(m_couples.size())));
        const OpenCouple &couple = m_couples[chosen];
        const Person &mother = person(couple.wife);
        const Person &father = person(couple.husband);
        if (couple.childrenLeft <= 0 || mother.death <= day || father.death <= day || day - mother.birth > 46 * Year) {
            dissolve(chosen, yearOf(day));
            continue;
        }
        const bool tooSoon = day < couple.wedding + (m_random.chance(2500) ? 30 : 250);
        if (!tooSoon && day - couple.lastBirth > m_random.between(330, 1100))
            return static_cast<int>(chosen);
    }
    return -1;
}

/// Takes a couple without further children off the list; who is left of it may marry again.
void Simulation::dissolve(std::size_t couple, int inYear)
{
    const OpenCouple ended = m_couples[couple];
    m_couples[couple] = m_couples.back();
    m_couples.pop_back();
    const bool husbandLives = person(ended.husband).death > dayOf(inYear + 1);
    const bool wifeLives = person(ended.wife).death > dayOf(inYear + 1);
    if (husbandLives != wifeLives && m_random.chance(husbandLives ? 7000 : 4000))
        keepLooking(husbandLives ? ended.husband : ended.wife, inYear);
}

void Simulation::giveBirth(int day, int couple)
{
    const int inYear = yearOf(day);
    Person child;
    child.birth = day;
    child.woman = m_random.chance(4870);
    child.death = drawDeath(day, child.woman, m_random);
    if (couple < 0) {
        child.surname = static_cast<std::uint16_t>(drawSurname(m_random));
        child.birthPlace = static_cast<std::uint16_t>(m_random.below(placeCount()));
        giveNames(child, inYear);
    } else {
        OpenCouple &parents = m_couples[static_cast<std::size_t>(couple)];
        Person &mother = person(parents.wife);
        Person &father = person(parents.husband);
        child.mother = parents.wife;
        mother.hasChildren = true;
        if (!m_random.chance(180)) { // else the register does not name him
            child.father = parents.husband;
            father.hasChildren = true;
        }
        child.surname = child.father >= 0 ? father.surname : mother.surname;
        if (m_random.chance(600))
            parents.place = static_cast<std::uint16_t>(m_random.below(placeCount()));
        child.birthPlace = parents.place;
        giveNames(child, inYear);
        parents.lastBirth = day;
        --parents.childrenLeft;
        if (m_random.chance(childbedDeaths(inYear)))
            mother.death = std::min(mother.death, day + m_random.below(20));
    }
    child.deathPlace = m_random.chance(child.death - day < 15 * Year ? 9500 : 5500)
                           ? child.birthPlace
                           : static_cast<std::uint16_t>(m_random.below(placeCount()));

    const int wish = child.woman ? m_random.between(19, 30) : m_random.between(22, 35);
    if (child.death - day > (wish + 1) * Year && m_random.chance(8800))
        marriageable(inYear + wish).push_back(static_cast<std::int32_t>(m_population.persons.size()));
    m_population.persons.push_back(child);
}

void Simulation::giveNames(Person &child, int inYear)
{
    if (child.death == child.birth && m_random.chance(5000))
        return;
    const GivenNames names = givenNames(inYear, child.woman);
    const int twoNames = inYear < 1650 ? 1500 : 5500;
    child.givenCount = static_cast<std::uint8_t>(m_random.chance(twoNames) ? (m_random.chance(2500) ? 3 : 2) : 1);
    for (int i = 0; i < child.givenCount; ++i) {
        std::uint16_t name = 0;
        bool again = true;
        while (again) {
            // Some names were far more frequent than others: the smaller of two draws.
            name = static_cast<std::uint16_t>(names.first +
                                              std::min(m_random.below(names.count), m_random.below(names.count)));
            again = std::find(child.given, child.given + i, name) != child.given + i;
        }
        child.given[i] = name;
    }
    // The first son or daughter often had the name of father or mother.
    const std::int32_t model = child.woman ? child.mother : child.father;
    if (model >= 0 && person(model).givenCount > 0 && m_random.chance(inYear < 1900 ? 2200 : 500)) {
        const std::uint16_t name = person(model).given[0];
        if (std::find(child.given, child.given + child.givenCount, name) == child.given + child.givenCount)
            child.given[0] = name;
    }
}

} // namespace

Population makePopulation(int persons, Random &random, const basic::Progress &progress)
{
    return Simulation(persons, random, progress).run();
}

std::vector<std::int32_t> entryOrder(const Population &population, Random &random)
{
    const std::vector<Person> &persons = population.persons;
    const std::size_t count = persons.size();
    std::vector<std::int32_t> firstChild(count, -1);
    std::vector<std::int32_t> nextSibling(count, -1);
    for (std::size_t i = count; i-- > 0;) {
        if (const std::int32_t mother = persons[i].mother; mother >= 0) {
            nextSibling[i] = firstChild[static_cast<std::size_t>(mother)];
            firstChild[static_cast<std::size_t>(mother)] = static_cast<std::int32_t>(i);
        }
    }

    std::vector<std::int32_t> order;
    order.reserve(count);
    std::vector<bool> entered(count);
    std::vector<std::int32_t> waiting;
    const auto enter = [&](std::int32_t index) {
        const auto at = static_cast<std::size_t>(index);
        if (index < 0 || entered[at])
            return;
        entered[at] = true;
        order.push_back(index);
        for (std::int32_t child = firstChild[at]; child >= 0; child = nextSibling[static_cast<std::size_t>(child)])
            waiting.push_back(child);
    };
    for (std::size_t start = 0; start < count; ++start) {
        if (entered[start])
            continue;
        waiting.assign(1, static_cast<std::int32_t>(start));
        for (int left = random.between(20, 400); left > 0 && !waiting.empty(); --left) {
            const std::int32_t index = waiting.back();
            waiting.pop_back();
            enter(index);
            enter(persons[static_cast<std::size_t>(index)].spouse);
        }
    }
    return order;
}

} // namespace kalvenor::demo
