// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/demofixture.h"
#include "platform/basic/codepage.h"
#include "platform/basic/date.h"
#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {
namespace {

using test::DemoTest;

constexpr int UnknownDay = 767011;

struct Row {
    int counter;
    QString listname, surname, given, sex, birthXX, deathXX;
    int birth, death, father, mother, changed;
    bool marked;
};

class DemoPersonsTest : public DemoTest {
protected:
    static std::vector<Row> persons()
    {
        const auto table = family()->table(u"Daten"_s);
        const auto number = [&](std::uint32_t row, QStringView name) {
            return table->integer(row, table->columnOf(name)).value_or(-1);
        };
        const auto text = [&](std::uint32_t row, QStringView name) {
            return table->text(row, table->columnOf(name));
        };
        std::vector<Row> all;
        for (std::uint32_t row = 0; row < table->rowCount(); ++row)
            all.push_back({number(row, u"Counter"), text(row, u"Listname"), text(row, u"nnamen"), text(row, u"vnamen"),
                           text(row, u"Geschlecht"), text(row, u"Geburt_XX"), text(row, u"sterbe_XX"),
                           number(row, u"Geburtsdatum"), number(row, u"Sterbedatum"), number(row, u"Vater"),
                           number(row, u"Mutter"), number(row, u"geaendert"),
                           table->boolean(row, table->columnOf(u"Markierung"))});
        return all;
    }
};

int day(int year)
{
    return static_cast<int>(*basic::dayNumber(year, 1, 1));
}

TEST_F(DemoPersonsTest, CountersAscendUnderAUniqueIndex)
{
    const auto all = persons();
    ASSERT_EQ(all.size(), 3000u);
    EXPECT_TRUE(std::ranges::is_sorted(all, std::ranges::less_equal(), &Row::counter));
    EXPECT_GT(all.back().counter, 3020) << "some were deleted";
    const auto table = family()->table(u"Daten"_s);
    ASSERT_EQ(table->indexes().size(), 1u);
    EXPECT_TRUE(table->indexes()[0].unique && table->indexes()[0].name == u"Counter");
}

TEST_F(DemoPersonsTest, DatesAndTheirCompanionsAgree)
{
    std::map<QString, int> companions;
    for (const Row &row : persons()) {
        SCOPED_TRACE(qPrintable(row.listname));
        EXPECT_FALSE(row.marked);
        EXPECT_GE(row.changed, day(1996));
        EXPECT_LT(row.changed, day(2011));
        for (const auto &[date, companion] : {std::pair(row.birth, row.birthXX), std::pair(row.death, row.deathXX)}) {
            EXPECT_EQ(date == UnknownDay, companion == u"XXX_______");
            EXPECT_TRUE(companion.isEmpty() || companion.size() == 10);
            if (date != UnknownDay) {
                EXPECT_GE(date, day(1480));
                EXPECT_LT(date, day(2011));
                ++companions[companion.left(companion.startsWith(u"__.") ? 3 : 10)];
            }
            if (companion.startsWith(u"__.")) { // the first day that the mask allows
                const QString first =
                    u"01."_s + (companion.mid(3, 2) == u"__" ? u"01"_s : companion.mid(3, 2)) + companion.mid(5);
                EXPECT_EQ(basic::formatDate(date, u"dd.mm.yyyy"), first);
            }
        }
        if (row.birth != UnknownDay && row.death != UnknownDay) {
            EXPECT_GE(row.death, row.birth);
        }
    }
    EXPECT_GT(companions[QString()], 3000);
    for (const QString &kind : {u"__."_s, u"um________"_s, u"vor_______"_s})
        EXPECT_GT(companions[kind], 3) << qPrintable(kind);
}

TEST_F(DemoPersonsTest, ParentsExistAreOlderAndOfTheRightSex)
{
    std::map<int, Row> byCounter;
    for (const Row &row : persons())
        byCounter[row.counter] = row;
    int withParents = 0;
    int inherited = 0;
    for (const auto &[counter, row] : byCounter) {
        SCOPED_TRACE(qPrintable(row.listname));
        for (const auto &[parent, sex] : {std::pair(row.father, u'M'), std::pair(row.mother, u'W')}) {
            if (parent == 0)
                continue;
            ASSERT_TRUE(byCounter.contains(parent));
            const Row &found = byCounter[parent];
            EXPECT_EQ(found.sex, QString(sex));
            if (row.birth != UnknownDay && found.birth != UnknownDay) {
                EXPECT_GT(row.birth - found.birth, 12 * 365);
            }
        }
        withParents += row.mother != 0 ? 1 : 0;
        if (row.father != 0)
            inherited += byCounter[row.father].surname == row.surname ? 1 : -10'000;
    }
    EXPECT_GT(withParents, 2000);
    EXPECT_GT(inherited, 1900);
}

TEST_F(DemoPersonsTest, ListNamesSayNameAndYears)
{
    int living = 0;
    const auto year = [](int date) {
        return date == UnknownDay ? u"?"_s : basic::formatDate(date, u"yyyy");
    };
    for (const Row &row : persons()) {
        QString shown = row.listname;
        shown.remove(u"um "_s).remove(u"vor "_s);
        const QString birth = row.surname + u", "_s + row.given + u" *"_s + year(row.birth);
        living += row.death == UnknownDay && shown == birth ? 1 : 0;
        EXPECT_TRUE(shown == birth || shown == birth + u" +"_s + year(row.death)) << qPrintable(row.listname);
        EXPECT_EQ(basic::decodeAnsi(basic::encodeAnsi(row.listname)), row.listname);
    }
    EXPECT_GT(living, 200);
}

TEST_F(DemoPersonsTest, LivesChangeOverTheCenturies)
{
    struct Shape {
        int born = 0, died = 0, infants = 0;
        double days = 0;
    };
    std::map<int, Shape> centuries;
    for (const Row &row : persons()) {
        if (row.birth == UnknownDay)
            continue;
        Shape &shape = centuries[basic::formatDate(row.birth, u"yyyy").left(2).toInt()];
        ++shape.born;
        if (row.death == UnknownDay)
            continue;
        ++shape.died;
        shape.days += row.death - row.birth;
        shape.infants += row.death - row.birth < 365 ? 1 : 0;
    }
    for (const int century : {15, 16, 17, 18, 19})
        EXPECT_GT(centuries[century].died, 40) << century;
    EXPECT_LT(centuries[19].infants * centuries[17].born, centuries[17].infants * centuries[19].born * 2 / 3);
    EXPECT_GT(centuries[19].days / centuries[19].died, 1.2 * centuries[17].days / centuries[17].died);
}

} // namespace
} // namespace kalvenor::demo
