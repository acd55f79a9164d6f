// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/familydatabase.h"

#include "demo/family/calendar.h"
#include "demo/family/names.h"
#include "demo/family/register.h"
#include "demo/host/hosttables.h"
#include "platform/basic/error.h"
#include <algorithm>
#include <numeric>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

namespace {

using jet::ColumnType;
using jet::NewValue;

constexpr std::size_t PrintedPages = 8;

std::vector<jet::NewColumn> personColumns()
{
    return {longColumn(u"Counter"),      textColumn(u"Listname", 150), column(u"Markierung", ColumnType::Boolean),
            textColumn(u"nnamen", 60),   textColumn(u"vnamen", 80),    textColumn(u"Geschlecht", 1),
            longColumn(u"Geburtsdatum"), textColumn(u"Geburt_XX", 10), textColumn(u"Geburtsort", 80),
            longColumn(u"Sterbedatum"),  textColumn(u"sterbe_XX", 10), textColumn(u"Sterbeort", 80),
            longColumn(u"Vater"),        longColumn(u"Mutter"),        textColumn(u"Religion", 20),
            textColumn(u"Beruf", 80),    textColumn(u"Quelle", 120),   column(u"Bemerkung", ColumnType::Memo),
            longColumn(u"angelegt"),     longColumn(u"geaendert")};
}

QStringList phrases(const char16_t *list)
{
    return QString::fromUtf16(list).split(u'|');
}

struct Phrases {
    QStringList oldTrades =
        phrases(u"Bauer|Häusler|Tagelöhner|Schuhmacher|Bäcker|Müller|Schmied|Leineweber|Böttcher|"
                u"Gerber|Hirte|Schulmeister|Pfarrer|Bürgermeister|Soldat|Förster|Glasmacher|Schöffe");
    QStringList newTrades =
        phrases(u"Landwirt|Schlosser|Elektriker|Kaufmann|Angestellter|Beamter|Lehrer|Arzt|Ingenieur|"
                u"Tischler|Eisenbahner|Bergmann|Fabrikarbeiter|Buchhalter|Apotheker");
    QStringList womensTrades =
        phrases(u"Magd|Köchin|Hebamme|Näherin|Bäuerin|Verkäuferin|Lehrerin|Krankenschwester|Ärztin|Sekretärin");
    QStringList religions = phrases(u"ev.|ev.|ev.|kath.|kath.|kath.|ref.|isr.");
    QStringList sources = phrases(u"Kirchenbuch|Standesamt|Familienbibel|Ortsfamilienbuch|Mitteilung der Familie");
    QStringList remarks =
        phrases(u"Der Eintrag ist schlecht lesbar; die Schreibweise des Namens wechselt.|"
                u"Taufpaten waren der Müller und dessen Ehefrau.|Nach mündlicher Überlieferung aus Böhmen zugezogen.|"
                u"Erbte den Hof \"Zum Löwen\" & verkaufte ihn <1 Jahr später.|"
                u"Stiftete eine Glocke für die Pfarrkirche, deren Inschrift erhalten ist. Eine Abschrift der "
                u"Leichenpredigt liegt im Stadtarchiv; sie nennt die Eltern, beide Großväter und die Namen von elf "
                u"Geschwistern, von denen vier die Eltern überlebten.|"
                u"Vormund war der Onkel mütterlicherseits.");
};

class PersonWriter {
public:
    PersonWriter(jet::Creator::Table &table, const Population &population, const std::vector<std::int32_t> &counters,
                 Random &random)
        : m_table(table), m_persons(population.persons), m_counters(counters), m_random(random)
    {
    }

    void add(std::int32_t index);
    std::vector<PrintedPerson> takePrinted() { return std::move(m_printed); }

private:
    NewValue maybe(int per10000, const QStringList &choices)
    {
        return m_random.chance(per10000) ? NewValue(m_random.pick(std::span(choices))) : NewValue();
    }
    NewValue trade(const Person &person)
    {
        if (person.death - person.birth < 18 * 365)
            return {};
        const bool modern = yearOf(person.birth) >= 1860;
        if (person.woman)
            return maybe(modern ? 4500 : 800, m_phrases.womensTrades);
        return maybe(7000, modern ? m_phrases.newTrades : m_phrases.oldTrades);
    }
    std::int32_t counterOf(std::int32_t index) const
    {
        return index < 0 ? 0 : m_counters[static_cast<std::size_t>(index)];
    }

    jet::Creator::Table &m_table;
    const std::vector<Person> &m_persons;
    const std::vector<std::int32_t> &m_counters;
    Random &m_random;
    Phrases m_phrases;
    std::size_t m_added = 0;
    std::vector<PrintedPerson> m_printed;
};

NewValue companion(const KnownDate &date)
{
    return date.companion.isNull() ? NewValue() : NewValue(date.companion);
}

void PersonWriter::add(std::int32_t index)
{
    const Person &person = m_persons[static_cast<std::size_t>(index)];
    const Entry entry = enter(person, m_random);
    const QString given = givenNamesOf(person);
    const QString &birthPlace = place(person.birthPlace);
    const int entered = m_random.between(dayOf(1996), dayOf(2009, 12, 31));
    // One faith to a family.
    const NewValue faith = m_phrases.religions[person.surname % m_phrases.religions.size()];
    m_table.addRow({counterOf(index),
                    listName(person, entry),
                    false,
                    surname(person.surname),
                    given,
                    entry.sexKnown ? NewValue(person.woman ? u"W"_s : u"M"_s) : NewValue(),
                    entry.birth.day,
                    companion(entry.birth),
                    m_random.chance(8500) ? NewValue(birthPlace) : NewValue(),
                    entry.death.day,
                    companion(entry.death),
                    entry.death.day != UnknownDay ? NewValue(place(person.deathPlace)) : NewValue(),
                    counterOf(person.father),
                    counterOf(person.mother),
                    m_random.chance(7000) ? faith : NewValue(),
                    trade(person),
                    maybe(2500, m_phrases.sources),
                    maybe(500, m_phrases.remarks),
                    entered,
                    m_random.between(entered, Today)});

    // Pages for some persons of every part of the table.
    if (m_added++ >= m_printed.size() * m_persons.size() / PrintedPages && m_printed.size() < PrintedPages &&
        entry.birth.companion.isNull() && entry.death.companion.isNull() && entry.sexKnown &&
        person.death - person.birth > 40 * 365)
        m_printed.push_back({counterOf(index), person.woman, given + u' ' + surname(person.surname),
                             dateOf(person.birth).toString(u"dd.MM.yyyy"), dateOf(person.death).toString(u"dd.MM.yyyy"),
                             birthPlace});
}

/// The persons as somebody would enter them who works family by family, in any order of these.
std::vector<std::int32_t> entryOrder(const Population &population, Random &random)
{
    std::vector<std::uint32_t> turns(population.couples.size() + 1);
    std::ranges::generate(turns, [&random] { return static_cast<std::uint32_t>(random.next() >> 32); });
    std::vector<std::int32_t> order(population.persons.size());
    std::iota(order.begin(), order.end(), 0);
    std::ranges::stable_sort(order, {}, [&](std::int32_t index) {
        return turns[static_cast<std::size_t>(population.persons[static_cast<std::size_t>(index)].family + 1)];
    });
    return order;
}

void addFamilies(jet::Creator &creator, const Population &population, const std::vector<std::int32_t> &counters,
                 Random &random)
{
    auto &families = creator.addTable(u"Familie"_s,
                                      {longColumn(u"Counter"), longColumn(u"Vater"), longColumn(u"Mutter"),
                                       longColumn(u"Heiratsdatum"), textColumn(u"Heirat_XX", 10)},
                                      counterIndex());
    int number = 0;
    for (const Couple &couple : population.couples) {
        const bool known = random.chance(8000);
        families.addRow({++number, counters[static_cast<std::size_t>(couple.husband)],
                         counters[static_cast<std::size_t>(couple.wife)], known ? couple.wedding : UnknownDay,
                         known ? NewValue() : NewValue(u"XXX_______"_s)});
    }
}

} // namespace

std::vector<PrintedPerson> writeFamilyDatabase(const QString &file, const Population &population, Random &random,
                                               const basic::Progress &progress)
{
    const auto persons = static_cast<qint64>(population.persons.size());
    const std::vector<std::int32_t> order = entryOrder(population, random);
    std::vector<std::int32_t> counters(population.persons.size());
    std::int32_t counter = 0;
    for (const std::int32_t index : order) {
        counter += random.chance(400) ? random.between(2, 9) : 1; // gaps where persons were deleted
        counters[static_cast<std::size_t>(index)] = counter;
    }

    jet::Creator creator;
    PersonWriter writer(creator.addTable(u"Daten"_s, personColumns(), counterIndex()), population, counters, random);
    qint64 done = 0;
    for (const std::int32_t index : order) {
        writer.add(index);
        if (++done % 4096 == 0 && progress && !progress(persons + done, 2 * persons))
            throw basic::Error(basic::Fault::StoppedDemo);
    }
    addFamilies(creator, population, counters, random);
    addHostTables(creator, u"Familie.mdb"_s, counters, random);
    creator.write(file);
    return writer.takePrinted();
}

} // namespace kalvenor::demo
