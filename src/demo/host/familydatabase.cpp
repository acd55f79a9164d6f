// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/familydatabase.h"

#include "demo/family/calendar.h"
#include "demo/family/names.h"
#include "demo/family/register.h"
#include "demo/host/familytables.h"
#include "platform/basic/error.h"
#include <algorithm>
#include <array>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

namespace {

using jet::ColumnType;
using jet::NewValue;

constexpr std::size_t PrintedPages = 8;

enum PersonColumn : std::size_t {
    Counter,
    Listname,
    Markierung,
    Nnamen,
    Vnamen,
    Rufname,
    Titel,
    Geschlecht,
    Geburtsdatum,
    GeburtXX,
    Geburtsort,
    Taufdatum,
    Sterbedatum,
    SterbeXX,
    Sterbeort,
    Todesursache,
    Begraebnisdatum,
    Vater,
    Mutter,
    Religion,
    Beruf,
    Wohnort,
    Quelle,
    Bemerkung,
    Angelegt,
    Geaendert,
    ColumnCount
};

std::vector<jet::NewColumn> personColumns()
{
    return {longColumn(u"Counter"),          textColumn(u"Listname", 150),   column(u"Markierung", ColumnType::Boolean),
            textColumn(u"nnamen", 60),       textColumn(u"vnamen", 80),      textColumn(u"Rufname", 40),
            textColumn(u"Titel", 30),        textColumn(u"Geschlecht", 1),   longColumn(u"Geburtsdatum"),
            textColumn(u"Geburt_XX", 10),    textColumn(u"Geburtsort", 80),  longColumn(u"Taufdatum"),
            longColumn(u"Sterbedatum"),      textColumn(u"sterbe_XX", 10),   textColumn(u"Sterbeort", 80),
            textColumn(u"Todesursache", 50), longColumn(u"Begraebnisdatum"), longColumn(u"Vater"),
            longColumn(u"Mutter"),           textColumn(u"Religion", 20),    textColumn(u"Beruf", 80),
            textColumn(u"Wohnort", 80),      textColumn(u"Quelle", 120),     column(u"Bemerkung", ColumnType::Memo),
            longColumn(u"angelegt"),         longColumn(u"geaendert")};
}

using Texts = QStringList;

Texts texts(const char16_t *list)
{
    return QString::fromUtf16(list).split(u'|');
}

struct Phrases {
    Texts oldTrades =
        texts(u"Bauer|Halbbauer|Häusler|Tagelöhner|Schneider|Schuhmacher|Bäcker|Müller|Schmied|Wagner|Leineweber|"
              u"Zimmermann|Maurer|Böttcher|Gerber|Metzger|Hirte|Schulmeister|Pfarrer|Gastwirt|Bürgermeister|"
              u"Soldat|Fuhrmann|Förster|Bergmann|Glasmacher|Schöffe|Krämer");
    Texts newTrades =
        texts(u"Landwirt|Schlosser|Elektriker|Kaufmann|Angestellter|Beamter|Lehrer|Arzt|Ingenieur|Maurer|"
              u"Tischler|Eisenbahner|Bergmann|Fabrikarbeiter|Buchhalter|Postbeamter|Rechtsanwalt|Apotheker");
    Texts womensTrades = texts(u"Hausfrau|Verkäuferin|Näherin|Lehrerin|Krankenschwester|Ärztin|Buchhalterin|Sekretärin|"
                               u"Fabrikarbeiterin|Köchin|Schneiderin|Apothekerin");
    Texts maids = texts(u"Magd|Köchin|Hebamme|Näherin|Spinnerin|Bäuerin");
    Texts infantCauses = texts(u"Frais|Blattern|Gefraisch|Auszehrung|Masern|Stickhusten|Schwäche|Zahnfieber");
    Texts causes =
        texts(u"Schlagfluß|Auszehrung|Lungensucht|Wassersucht|hitziges Fieber|Ruhr|Altersschwäche|Brustfieber|"
              u"Unfall im Wald|ertrunken");
    Texts newCauses = texts(u"Herzversagen|Krebs|Schlaganfall|Lungenentzündung|Altersschwäche|Verkehrsunfall");
    Texts religions = texts(u"ev.|ev.|ev.|kath.|kath.|kath.|ref.|isr.");
    Texts mensTitles = texts(u"Dr.|Magister|Hofrat|Dr. med.|Ökonomierat|Freiherr");
    Texts womensTitles = texts(u"Dr.|Freifrau|Dr. med.|Prof.");
    Texts oldSources =
        texts(u"Kirchenbuch|Taufregister Bd. 3|Sterberegister|Familienbibel|Ortsfamilienbuch|Bürgerbuch");
    Texts newSources = texts(u"Standesamt|Kirchenbuch|Familienstammbuch|Ortsfamilienbuch|Mitteilung der Familie");
    Texts remarks =
        texts(u"Der Eintrag ist schlecht lesbar; die Schreibweise des Namens wechselt.|"
              u"Taufpaten waren der Müller und dessen Ehefrau.|Nach mündlicher Überlieferung aus Böhmen zugezogen.|"
              u"Erbte den Hof \"Zum Löwen\" & verkaufte ihn <1 Jahr später.|"
              u"Stiftete eine Glocke für die Pfarrkirche, deren Inschrift erhalten ist. Der Grabstein stand bis zum "
              u"Umbau der "
              u"Kirche im südlichen Seitenschiff und wurde danach an der Außenmauer angebracht. Eine Abschrift der "
              u"Leichenpredigt liegt im Stadtarchiv; sie nennt die Eltern, beide Großväter und die Namen von elf "
              u"Geschwistern, "
              u"von denen vier die Eltern überlebten.|"
              u"Das Alter beim Tod ist im Register mit Jahren, Monaten und Tagen angegeben.|"
              u"Vormund war der Onkel mütterlicherseits.");
    QString missing = u"Vermißt seit Januar 1945."_s;
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
    NewValue maybe(int per10000, const Texts &choices)
    {
        return m_random.chance(per10000) ? NewValue(m_random.pick(std::span(choices))) : NewValue();
    }
    std::int32_t counterOf(std::int32_t index) const
    {
        return index < 0 ? 0 : m_counters[static_cast<std::size_t>(index)];
    }
    NewValue trade(const Person &person, int years);
    NewValue cause(const Person &person, int years);

    jet::Creator::Table &m_table;
    const std::vector<Person> &m_persons;
    const std::vector<std::int32_t> &m_counters;
    Random &m_random;
    Phrases m_phrases;
    std::array<NewValue, ColumnCount> m_row;
    std::size_t m_added = 0;
    std::vector<PrintedPerson> m_printed;
};

NewValue dateCompanion(const KnownDate &date)
{
    return date.companion.isNull() ? NewValue() : NewValue(date.companion);
}

NewValue PersonWriter::trade(const Person &person, int years)
{
    if (years < 18)
        return {};
    const bool modern = yearOf(person.birth) >= 1860;
    if (person.woman)
        return modern ? maybe(4500, m_phrases.womensTrades) : maybe(800, m_phrases.maids);
    return maybe(7000, modern ? m_phrases.newTrades : m_phrases.oldTrades);
}

NewValue PersonWriter::cause(const Person &person, int years)
{
    if (years < 8)
        return maybe(1200, m_phrases.infantCauses);
    return yearOf(person.death) < 1900 ? maybe(1000, m_phrases.causes) : maybe(700, m_phrases.newCauses);
}

void PersonWriter::add(std::int32_t index)
{
    const Person &person = m_persons[static_cast<std::size_t>(index)];
    const Entry entry = enter(person, m_random);
    const int years = (std::min(person.death, Today) - person.birth) / 365;
    const QString given = givenNamesOf(person);
    const QString listed = listName(person, entry);
    const int counter = counterOf(index);
    const bool exactBirth = entry.birth.companion.isNull();
    const bool exactDeath = entry.death.companion.isNull();

    m_row.fill({});
    m_row[Counter] = counter;
    m_row[Listname] = listed;
    m_row[Markierung] = false;
    m_row[Nnamen] = surname(person.surname);
    m_row[Vnamen] = given;
    if (person.givenCount > 1 && m_random.chance(2000))
        m_row[Rufname] = givenName(person.given[1]);
    if (years > 30)
        m_row[Titel] = maybe(150, person.woman ? m_phrases.womensTitles : m_phrases.mensTitles);
    if (entry.sexKnown)
        m_row[Geschlecht] = person.woman ? u"W"_s : u"M"_s;
    m_row[Geburtsdatum] = entry.birth.day;
    m_row[GeburtXX] = dateCompanion(entry.birth);
    if (m_random.chance(8500))
        m_row[Geburtsort] = place(person.birthPlace).name;
    const int baptism = person.birth + m_random.below(4);
    const bool baptised = exactBirth && baptism <= person.death && m_random.chance(5500);
    m_row[Taufdatum] = baptised ? baptism : UnknownDay;
    m_row[Sterbedatum] = entry.death.day;
    m_row[SterbeXX] = dateCompanion(entry.death);
    if (!entry.death.isUnknown()) {
        m_row[Sterbeort] = place(person.deathPlace).name;
        m_row[Todesursache] = cause(person, years);
    }
    m_row[Begraebnisdatum] = exactDeath && m_random.chance(4000) ? person.death + m_random.between(2, 4) : UnknownDay;
    m_row[Vater] = counterOf(person.father);
    m_row[Mutter] = counterOf(person.mother);
    if (m_random.chance(7000)) // one faith to a family
        m_row[Religion] = m_phrases.religions[person.surname % m_phrases.religions.size()];
    m_row[Beruf] = trade(person, years);
    if (m_random.chance(2000))
        m_row[Wohnort] = place(person.deathPlace).name;
    m_row[Quelle] = maybe(2500, yearOf(person.birth) < 1876 ? m_phrases.oldSources : m_phrases.newSources);
    if (!person.woman && years >= 17 && yearOf(person.death) == 1945)
        m_row[Bemerkung] = m_phrases.missing;
    else
        m_row[Bemerkung] = maybe(500, m_phrases.remarks);
    const int entered = m_random.between(dayOf(1996), dayOf(2009, 12, 31));
    m_row[Angelegt] = entered;
    m_row[Geaendert] = m_random.between(entered, Today);
    m_table.addRow(m_row);

    // Pages for some persons of every part of the table.
    if (m_added++ >= m_printed.size() * m_persons.size() / PrintedPages && m_printed.size() < PrintedPages &&
        exactBirth && exactDeath && entry.sexKnown && years > 40)
        m_printed.push_back({counter, person.woman, given + u' ' + surname(person.surname), dateText(entry.birth.day),
                             dateText(entry.death.day), place(person.birthPlace).name});
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
    addFamilyTables(creator, population, counters, random);
    creator.write(file);
    return writer.takePrinted();
}

} // namespace kalvenor::demo
