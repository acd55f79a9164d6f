// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/lists/listquery.h"
#include "support/startedprogram.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QStringList>

using namespace kalvenor;
using namespace kalvenor::selection;

// Counters are not in the order of the rows, and a person comes and one goes where the file is read anew.
TEST(MarkSnapshot, TellsWhatAnActionChangedThatEndedHalfWay)
{
    std::vector<test::TestPerson> persons;
    for (qint32 i = 0; i < 20000; ++i)
        persons.push_back({.counter = 50000 - i, .listname = QString("Person %1").arg(i), .marked = i % 2 == 0});
    for (const bool readAnew : {false, true}) {
        SCOPED_TRACE(readAnew);
        test::StartedProgram started(persons);
        dao::Database &family = *started.program.databases.Familiendatenbank;
        const dao::MarkSnapshot before = family.marks("Daten");
        EXPECT_TRUE(family.marks("Daten").since(before).isEmpty());

        std::vector<qint32> all;
        for (const auto &person : persons)
            all.push_back(person.counter);
        const auto halfWay = [](qint64 done, qint64 total) {
            return done < total / 2;
        };
        EXPECT_THROW(family.setMarks("Daten", all, true, halfWay), basic::Error);
        if (readAnew) {
            family.refresh();
            auto others = persons;
            others.erase(others.begin());
            others.push_back({.counter = 7, .listname = "Neu", .marked = true});
            for (auto &person : others)
                person.marked = person.marked || person.counter == 49999;
            test::writeFamily(family.file(), others);
            family.refresh();
        } else {
            family.refresh();
        }
        const dao::MarkDifference step = family.marks("Daten").since(before);
        EXPECT_TRUE(step.unmarked.empty());
        if (readAnew) {
            EXPECT_EQ(step.marked, std::vector<qint32>{49999});
            continue;
        }
        EXPECT_FALSE(step.marked.empty());
        EXPECT_LT(step.marked.size(), 10000U);
        family.setMarks("Daten", step.marked, false);
        EXPECT_EQ(family.openQuery(plainListQuery(PersonList::Marked))->recordCount(), 10000);
        EXPECT_TRUE(family.marks("Daten").since(before).isEmpty());
    }
}
