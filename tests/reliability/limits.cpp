// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// limits KIND DIR [PERSONS]: a host installation in DIR whose family database is at a limit. KIND is columns (255 of
// them), rows (as many persons as said, records as long as 2 GB allow), loops (everybody is an ancestor of themselves),
// texts (100,000 characters), dates (both ends of the range) or beyond (days outside it).
#include "platform/basic/error.h"
#include "platform/jet/creator/creator.h"
#include "support/fixtures.h"
#include <cstdio>
#include <cstdlib>
#include <limits>

using namespace kalvenor;
using namespace Qt::StringLiterals;
using jet::ColumnType;

namespace {

struct Shape {
    std::vector<jet::NewColumn> more{}; ///< columns behind those that every family has
    std::vector<jet::NewValue> values{};
    ColumnType name = ColumnType::Text;
};

struct Person {
    QString name;
    jet::NewValue birth{}, death{};
    int father = 0, mother = 0;
};

template <class PersonOf>
void write(const QString &file, int persons, const Shape &shape, PersonOf personOf)
{
    std::vector<jet::NewColumn> columns = {{.name = u"Counter"_s},
                                           {.name = u"Listname"_s, .type = shape.name},
                                           {.name = u"Markierung"_s, .type = ColumnType::Boolean},
                                           {.name = u"nnamen"_s, .type = ColumnType::Text},
                                           {.name = u"vnamen"_s, .type = ColumnType::Text},
                                           {.name = u"Geschlecht"_s, .type = ColumnType::Text, .length = 1},
                                           {.name = u"Geburtsdatum"_s},
                                           {.name = u"Geburt_XX"_s, .type = ColumnType::Text, .length = 10},
                                           {.name = u"Sterbedatum"_s},
                                           {.name = u"sterbe_XX"_s, .type = ColumnType::Text, .length = 10},
                                           {.name = u"Vater"_s},
                                           {.name = u"Mutter"_s},
                                           {.name = u"geaendert"_s}};
    columns.insert(columns.end(), shape.more.begin(), shape.more.end());
    jet::Creator creator;
    jet::Creator::Table &table = creator.addTable(u"Daten"_s, columns, {{u"Counter"_s, {u"Counter"_s}}});
    std::vector<jet::NewValue> values;
    for (int counter = 1; counter <= persons; ++counter) {
        const Person person = personOf(counter);
        values = {counter,      person.name, false,        u"N"_s, u"V"_s,        counter % 2 == 0 ? u"W"_s : u"M"_s,
                  person.birth, {},          person.death, {},     person.father, person.mother,
                  38000};
        values.insert(values.end(), shape.values.begin(), shape.values.end());
        table.addRow(values);
    }
    test::addOtherTables(creator);
    creator.write(file);
}

} // namespace

int main(int argc, char **argv)
try {
    if (argc < 3)
        return 2;
    const QString kind = QString::fromLocal8Bit(argv[1]);
    const QString folder = QString::fromLocal8Bit(argv[2]);
    const int persons = argc > 3 ? std::atoi(argv[3]) : 2000;
    test::writeHost(folder, {});
    const QString file = folder + u"/QV/Familie/familie.mdb"_s;
    Shape shape;
    const auto usual = [](int counter) {
        return Person{u"Person, Nummer %1"_s.arg(counter), -counter % 60000, 20000 - counter % 60000};
    };
    if (kind == u"columns") {
        for (int i = 13; i < 255; ++i) {
            shape.more.push_back({.name = u"Spalte%1"_s.arg(i), .type = ColumnType::Boolean});
            shape.values.emplace_back(i % 3 == 0);
        }
        write(file, persons, shape, usual);
    } else if (kind == u"rows") {
        shape.more.push_back({.name = u"Quelle"_s, .type = ColumnType::Binary, .length = 100});
        shape.values.emplace_back(QByteArray(100, 'q'));
        write(file, persons, shape, usual);
    } else if (kind == u"loops") {
        write(file, persons, shape, [&](int counter) {
            Person person = usual(counter);
            person.father =
                counter % 10 == 0 ? counter : counter % persons + 1; // oneself, or the next, round and round
            person.mother = persons + 1 - counter;
            return person;
        });
    } else if (kind == u"texts") {
        shape.name = ColumnType::Memo;
        write(file, persons, shape, [&](int counter) {
            Person person = usual(counter);
            if (counter <= 5)
                person.name = QString(100'000, QChar(u'a' + counter)) + person.name;
            return person;
        });
    } else if (kind == u"dates" || kind == u"beyond") {
        std::vector<int> days{-657434, -657433, -1, 0, 1, 2958464, 2958465};
        if (kind == u"beyond")
            days = {-657435, 2958466, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
        write(file, persons, shape, [&](int counter) {
            Person person = usual(counter);
            person.birth = days[static_cast<std::size_t>(counter) % days.size()];
            person.death = days[static_cast<std::size_t>(counter) / days.size() % days.size()];
            return person;
        });
    } else {
        return 2;
    }
    return 0;
} catch (const basic::Error &error) {
    std::fprintf(stderr, "limits: %s\n", error.what());
    return 1;
}
