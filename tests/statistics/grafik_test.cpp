// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/figures/grafik.h"

#include "platform/basic/date.h"
#include "platform/basic/number.h"
#include "support/errors.h"
#include "support/startedprogram.h"
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>

using namespace kalvenor;
using namespace kalvenor::statistics;

namespace {

using test::TestPerson;

/// All of a chart in one text, which shows what differs.
std::string text(const Grafikzahlen &figures)
{
    QStringList lines{figures.anzahl[0] + ' ' + figures.anzahl[1] + ' ' + figures.anzahl[2],
                      figures.durchschnitt[0] + ' ' + figures.durchschnitt[1] + ' ' + figures.durchschnitt[2],
                      figures.spanne.value_or("no range"), figures.ohneDatum, figures.tabelle.columnLabels.join(' ')};
    for (std::size_t i = 0; i < figures.tabelle.data.size(); ++i)
        lines << figures.tabelle.rowLabels[qsizetype(i)] + ':' + figures.tabelle.data[i].join(' ');
    return lines.join('\n').toStdString();
}

/// The same from the rules as they are told, step by step.
std::string expected(const std::vector<TestPerson> &persons, const Statistik &statistik)
{
    const auto &boxes = statistik.geschlechtalter;
    std::map<QString, double> sum;
    std::map<QString, int> count;
    std::map<std::pair<int, char>, std::pair<int, double>> cells; // century, group → persons, years
    double lowest = 99999, highest = 0;
    int without = 0, century = 0, last = -1;
    for (const TestPerson &person : persons) {
        const int birth = person.birth.value_or(767011), death = person.death.value_or(767011);
        if (birth == 767011 || death == 767011) {
            ++without;
            continue;
        }
        const double days = death > birth ? death - birth : 0;
        if (days <= 0)
            continue;
        if (person.sex == "M" || person.sex == "W") {
            sum[person.sex] += days;
            ++count[person.sex];
        }
        sum["all"] += days;
        ++count["all"];
        if ((person.sex == "M" && boxes[2] == 1) || (person.sex == "W" && boxes[3] == 1)) {
            lowest = std::min(lowest, days);
            highest = std::max(highest, days);
            century = basic::formatDate(statistik.nachGeburtsjahr ? birth : death, u"dd-mm-yyyy").mid(6, 2).toInt();
        }
        last = std::max(last, century);
        for (const char group : {person.sex == "M" ? 'M' : 'W', 'A'}) {
            ++cells[{century, group}].first;
            cells[{century, group}].second += days / 365;
        }
    }
    QStringList counts, averages;
    for (const char *group : {"M", "W", "all"}) {
        counts << QString::number(count[group]);
        averages << (count[group] < 1
                         ? QString("-")
                         : basic::trimmedNumberText(std::floor(sum[group] / 365 / count[group] * 10) / 10));
    }
    const auto years = [](double days) {
        return basic::numberText(std::floor(days / 365 * 10) / 10);
    };
    lowest = lowest == 999 ? 0 : lowest;
    const bool both = boxes[2] == 1 && boxes[3] == 1;
    const QString columns = both ? "M W A" : boxes[2] == 1 ? "M" : boxes[3] == 1 ? "W" : "A";
    QStringList lines{counts.join(' '), averages.join(' '),
                      lowest < highest ? years(lowest) + " | " + years(highest) : "no range",
                      basic::numberText(without) + " ohne * / + Datum", QString(columns).replace("A", "Alle")};
    int row = 1;
    while (row <= last && cells[{row, 'M'}].second == 0 && cells[{row, 'W'}].second == 0)
        ++row;
    if (row <= last) {
        for (row = std::min(row, 18); row <= last; ++row) {
            QStringList line;
            for (const QString &group : columns.split(' ')) {
                const auto &[number, sumOfYears] = cells[{row, group[0].toLatin1()}];
                line << basic::trimmedNumberText(sumOfYears / (number == 0 ? 1 : number));
            }
            lines << " " + QString::number(row) + "00-99:" + line.join(' ');
        }
    }
    return lines.join('\n').toStdString();
}

std::string computed(const std::vector<TestPerson> &persons, const Statistik &statistik)
{
    Grafikermittlung figures(statistik);
    for (const TestPerson &person : persons)
        figures.add(person.birth, person.death, geschlechtAus(person.sex));
    return text(figures.zahlen());
}

std::vector<TestPerson> randomPersons(std::mt19937 &random)
{
    const auto below = [&](int limit) {
        return static_cast<int>(random() % unsigned(limit));
    };
    const int from = 10 + below(12), centuries = 1 + below(22 - from);
    std::vector<TestPerson> persons;
    for (int i = below(25); i > 0; --i) {
        const int birth = (from - 19) * 36524 + below(centuries * 36524);
        TestPerson person{.counter = i, .marked = true, .birth = birth, .death = birth - 400 + below(32'000)};
        person.listname = QString("%1").arg(persons.size(), 3, 10, QChar('0'));
        person.sex = QStringList{"M", "W", "M", "W", "", "m", "U"}[below(7)];
        const int kind = below(12);
        if (kind == 0)
            person.birth = 767011;
        else if (kind == 1)
            person.death = 767011;
        else if (kind == 2)
            person.birth.reset();
        else if (kind == 3)
            person.death = birth + QList{0, 1, 365, 999}[below(4)];
        persons.push_back(person);
    }
    return persons;
}

std::vector<Statistik> allChoices()
{
    std::vector<Statistik> all;
    for (int i = 0; i < 32; ++i)
        all.push_back({.geschlechtalter = {qint16(i & 1), qint16(i >> 1 & 1), qint16(i >> 2 & 1), qint16(i >> 3 & 1)},
                       .nachGeburtsjahr = i >= 16});
    all.push_back({.geschlechtalter = {1, 1, 2, 1}}); // a box is on only with exactly 1
    return all;
}

} // namespace

TEST(Jahrhundert, IsThatOfTheFormattedDate)
{
    // Both grow with the day, so that they agree everywhere where they agree on both sides of each change.
    for (int century = 1; century <= 99; ++century) {
        const auto start = double(*basic::dayNumber(century * 100, 1, 1));
        for (const double day : {start - 1, start - 0.75, start, start + 0.5, start + 36'000}) {
            const QString date = basic::formatDate(day, u"dd-mm-yyyy");
            if (date.isEmpty())
                EXPECT_THROW(jahrhundert(day), basic::Error) << day;
            else
                EXPECT_EQ(jahrhundert(day), date.mid(6, 2).toInt()) << date.toStdString();
        }
    }
    EXPECT_EQ(jahrhundert(double(*basic::dayNumber(1900, 1, 1)) - 1e-7), 19) << "rounds up to midnight";
    const auto end = double(*basic::dayNumber(9999, 12, 31));
    EXPECT_EQ(jahrhundert(end), 99);
    for (const double day : {end + 1, -1e300, 1e300, std::nan("")})
        EXPECT_THROW(jahrhundert(day), basic::Error) << day;
}

TEST(Grafikermittlung, FollowsTheRulesForRandomPersons)
{
    std::mt19937 random(20260);
    for (int round = 0; round < 300; ++round) {
        const auto persons = randomPersons(random);
        for (const Statistik &statistik : allChoices())
            ASSERT_EQ(computed(persons, statistik), expected(persons, statistik)) << "round " << round;
    }
}

TEST(Grafikermittlung, KeepsItsEdges)
{
    const qint32 in1700 = -60'000, in1800 = -20'000, in1900 = 5'000;
    const auto person = [](const char *sex, qint32 birth, qint32 days) {
        return TestPerson{.sex = sex, .birth = birth, .death = birth + days};
    };
    const struct {
        const char *what;
        std::vector<TestPerson> persons;
        GeschlechtAlter boxes;
        const char *text;
    } rows[] = {
        {"nobody", {}, {1, 1, 1, 1}, "0 0 0\n- - -\nno range\n 0 ohne * / + Datum\nM W Alle"},
        {"1799 and 1801 are two rows",
         {{.birth = -36'525, .death = -36'525 + 365}, {.birth = -36'159, .death = -36'159 + 730}},
         {1, 1, 1, 0},
         "2 0 2\n1.5 - 1.5\n 1 |  2\n 0 ohne * / + Datum\nM\n 1700-99:1\n 1800-99:2"},
        {"a woman who is not shown goes to the last man's century",
         {person("W", in1900, 365), person("M", in1700, 3650), person("W", in1900, 730), person("M", in1900, 7300)},
         {1, 1, 1, 0},
         "2 2 4\n15 1.5 8.2\n 10 |  20\n 0 ohne * / + Datum\nM\n 1700-99:10\n 1800-99:0\n 1900-99:20"},
        {"the rows begin with 18",
         {person("M", in1900, 365)},
         {1, 1, 1, 1},
         "1 0 1\n1 - 1\nno range\n 0 ohne * / + Datum\nM W Alle\n 1800-99:0 0 0\n 1900-99:1 0 1"},
        {"unknown sex counts with the women's cells",
         {person("W", in1800, 365), person("", in1800, 1095)},
         {1, 1, 1, 1},
         "0 1 2\n- 1 2\nno range\n 0 ohne * / + Datum\nM W Alle\n 1800-99:0 2 2"},
        {"nobody who is counted is shown",
         {person("", in1800, 365)},
         {1, 1, 1, 1},
         "0 0 1\n- - 1\nno range\n 0 ohne * / + Datum\nM W Alle"},
        {"no box", {person("M", in1800, 365)}, {1, 1, 0, 0}, "1 0 1\n1 - 1\nno range\n 0 ohne * / + Datum\nAlle"},
        {"a lowest age of 999 days is none",
         {person("M", in1800, 999)},
         {1, 1, 1, 1},
         "1 0 1\n2.7 - 2.7\n 0 |  2.7\n 0 ohne * / + Datum\nM W Alle\n 1800-99:2.73698630136986 0 2.73698630136986"},
        {"ages above 99999 days are never the lowest",
         {person("M", in1800, 109'500)},
         {1, 1, 1, 1},
         "1 0 1\n300 - 300\n 273.9 |  300\n 0 ohne * / + Datum\nM W Alle\n 1800-99:300 0 300"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(computed(row.persons, {.geschlechtalter = row.boxes}), row.text) << row.what;
}

TEST(Grafikermittlung, CountsMoreThan16BitsHold)
{
    Grafikermittlung figures({});
    for (int i = 0; i < 70'000; ++i)
        figures.add(0, 36'500, i % 2 == 0 ? Geschlecht::Mann : Geschlecht::Frau);
    EXPECT_EQ(text(figures.zahlen()), "35000 35000 70000\n100 100 100\nno range\n 0 ohne * / + Datum\nM W Alle\n"
                                      " 1800-99:100 100 100");
}

TEST(Grafikermitteln, ReadsMarkedPersonsOfADatabase)
{
    std::mt19937 random(7);
    for (int round = 0; round < 4; ++round) {
        auto persons = randomPersons(random);
        auto stored = persons;
        stored.push_back({.counter = 900, .listname = "000 unmarked", .birth = 0, .death = 365});
        std::shuffle(stored.begin(), stored.end(), random);
        test::StartedProgram started(stored);
        for (const Statistik &statistik : allChoices()) {
            const Grafikzahlen figures = grafikermitteln(started.program.databases, statistik);
            ASSERT_EQ(text(figures), expected(persons, statistik));
            const Personenzahlen &zahlen = figures.zahlen;
            EXPECT_EQ(zahlen.markiert, qint64(persons.size()));
            EXPECT_EQ(zahlen.gezaehlt + zahlen.ohneDatum + zahlen.nichtNachGeburt, zahlen.markiert);
            for (std::size_t row = 0; row < figures.personen.size(); ++row) {
                for (std::size_t column = 0; column < figures.gruppen.size(); ++column) {
                    const Saeule behind = saeule(started.program.databases, statistik, figures.gruppen[column],
                                                 figures.erstesJahrhundert + int(row));
                    EXPECT_EQ(qint64(behind.personen.size()), figures.personen[row][column]);
                    EXPECT_EQ(behind.personen.size() + behind.uebrige.size(), persons.size());
                }
            }
        }
    }
}

TEST(Grafikermitteln, NamesThePersonWhoseDateIsNoneAndCanBeStopped)
{
    test::StartedProgram started(
        {{.counter = 4711, .listname = "Abel, Max", .marked = true, .birth = -9'000'000, .death = 5}});
    const auto refusal = [&](bool byBirth, const basic::Progress &progress = {}) {
        return test::refusalOf(
            [&] { grafikermitteln(started.program.databases, {.nachGeburtsjahr = byBirth}, progress); });
    };
    const QString named = refusal(true);
    EXPECT_TRUE(named.contains("Abel, Max (4711)") && named.contains("-9000000")) << named.toStdString();
    EXPECT_EQ(refusal(false), "");
    EXPECT_TRUE(refusal(false, [](qint64, qint64) { return false; }).contains("Stopped"));
}
