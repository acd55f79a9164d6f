// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "family.h"
#include "platform/jet/creator/creator.h"
#include "platform/jet/order/like.h"
#include <random>

using namespace Qt::StringLiterals;

namespace kalvenor::test {

namespace {

/// A table of names of all kinds; each text stands in a compressed, an uncompressed and a long column.
class Names : public ::testing::Test {
protected:
    static constexpr int Count = 1500;

    void SetUp() override
    {
        using T = jet::ColumnType;
        jet::Creator creator;
        auto &table = creator.addTable(u"Daten"_s, {{.name = u"Counter"_s, .type = T::Long},
                                                    {.name = u"Listname"_s, .type = T::Text},
                                                    {.name = u"Weit"_s, .type = T::Text, .compressed = false},
                                                    {.name = u"Lang"_s, .type = T::Memo},
                                                    {.name = u"Markierung"_s, .type = T::Boolean}});
        const QStringView pieces[] = {u"Müller", u"MÜLLER", u"Schmidt", u"o", u"?", u"#", u"7",   u"[x]",
                                      u", ",     u"Ärmel",  u"ß",       u"*", u" ", u"-", u"%",   u"Αθήνα",
                                      u"Жуков",  u"’",      u"😀",       u"é", u"E", u"'", u"ÿÿÿ", u"Ā"};
        std::mt19937 random(11);
        for (int i = 0; i < Count; ++i) {
            std::optional<QString> text;
            if (i % 9 != 0) { // else null
                text.emplace(u""_s);
                for (auto length = random() % 5; length > 0; --length)
                    *text += pieces[random() % std::size(pieces)];
            }
            const jet::NewValue value = text ? jet::NewValue(*text) : jet::NewValue();
            table.addRow({jet::NewValue(i), value, value, value, jet::NewValue(i % 3 == 0)});
            texts.push_back(text);
        }
        const QString file = folder.filePath(u"namen.mdb"_s);
        creator.write(file);
        database = engine.openDatabase(file);
    }

    QList<int> numbers(const QString &condition) const
    {
        QList<int> found;
        const auto rows = database->openQuery(u"SELECT Counter FROM Daten WHERE "_s + condition);
        for (; !rows->eof(); rows->moveNext())
            found << rows->integer(0).value_or(-1);
        return found;
    }

    QTemporaryDir folder;
    dao::Engine engine;
    std::shared_ptr<dao::Database> database;
    std::vector<std::optional<QString>> texts;
};

TEST_F(Names, AnswerLikeAsSqliteItselfWould)
{
    const QString tooLong(64, u'?'); // for the quick scan
    const QStringView patterns[] = {u"*",       u"**",        u"",     u"?",     u"*?*",     u"#",       u"*#*",
                                    u"müller*", u"*SCHMIDT*", u"*o",   u"*[?]*", u"*[*]*",   u"*[[]x]*", u"[!m]*",
                                    u"*[é-ë]*", u"*[!a-z]",   u"*ß*",  u"*αθ*",  u"*ж*",     u"*’*",     u"?ж*",
                                    u"*ж?ков",  u"*%",        u"*''*", u"????",  u"*😀*",     u"*Ā",      u"* , *",
                                    u"*e*e*",   u"[]",        u"*ÿÿ?", u"m*r*",  u"*[0-9]*", u"*[А-Я]*", tooLong};
    int found = 0;
    for (const QStringView pattern : patterns) {
        QList<int> expected;
        const jet::LikePattern like(pattern.toString().replace(u"''"_s, u"'"_s));
        for (int i = 0; i < Count; ++i) {
            const auto &text = texts[static_cast<std::size_t>(i)];
            if (text && like.matches(*text))
                expected << i;
        }
        EXPECT_EQ(numbers(u"Listname LIKE '%1'"_s.arg(pattern)), expected) << pattern.toString().toStdString();
        found += expected.isEmpty() ? 0 : 1;
        for (const char *column : {"Listname", "Weit", "Lang"}) {
            const QString name = QString::fromLatin1(column);
            // The comparison of a computed text is SQLite's own work.
            for (const char *condition :
                 {"%1 LIKE '%2'", "%1 LIKE '%2' AND Markierung = 0",
                  "Markierung = -1 AND Counter > 700 AND %1 LIKE '%2'", "%1 LIKE '%2' OR Counter < 20",
                  "%1 LIKE '%2' AND (%1 LIKE '*m*' OR Counter = 50)",
                  "%1 LIKE '%2' AND Weit LIKE '*e*' ORDER BY Listname", "NOT (%1 LIKE '%2')",
                  "Counter = 250 AND %1 LIKE '%2'", "Counter IN (50, 51, 52, 350) AND %1 LIKE '%2'"}) {
                const QString plain = QString::fromLatin1(condition).arg(name, pattern.toString());
                const QString computed =
                    QString::fromLatin1(condition).arg(u'(' + name + u" || '')"_s, pattern.toString());
                EXPECT_EQ(numbers(plain), numbers(computed)) << plain.toStdString();
            }
        }
    }
    EXPECT_GT(found, static_cast<int>(std::size(patterns)) - 3); // nearly each finds somebody
}

} // namespace

} // namespace kalvenor::test
