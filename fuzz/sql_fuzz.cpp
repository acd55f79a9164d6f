// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any text as the name of a filter and as a whole statement: only Error comes out, and whatever it says, nothing but
// mark bits changes in the file.
#include "platform/basic/error.h"
#include "platform/dao/dao.h"
#include "platform/jet/creator/creator.h"
#include "selection/filter/filtern.h"
#include "workfile.h"

using namespace kalvenor;
using namespace Qt::StringLiterals;

namespace {

/// A table of persons, all of them marked or none.
QByteArray family(const WorkFile &work, bool marked)
{
    jet::Creator creator;
    auto &table = creator.addTable(u"Daten"_s,
                                   {{.name = u"Counter"_s},
                                    {.name = u"Listname"_s, .type = jet::ColumnType::Text},
                                    {.name = u"Markierung"_s, .type = jet::ColumnType::Boolean},
                                    {.name = u"Geburtsdatum"_s}},
                                   {{.name = u"Counter"_s, .columns = {u"Counter"_s}, .primary = true}});
    for (int person = 1; person <= 5; ++person)
        table.addRow({person, u"Weiß, Eva"_s, marked, -person * 9000});
    creator.write(work.path());
    return work.bytes();
}

template <class Use>
void attempt(Use use)
{
    try {
        use([steps = 0](qint64, qint64) mutable { return ++steps < 100; }); // a join of many tables need not end
    } catch (const basic::Error &) {
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const WorkFile Work;
    static const QByteArray Marked = family(Work, true);
    static const QByteArray Unmarked = family(Work, false);
    static dao::Engine engine;
    static const auto Database = engine.openDatabase(Work.path());

    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString narrowed =
        selection::filtern({.Presse = text}, basic::DateOrder::DayMonthYear).queries[std::size_t(0)];
    attempt([&](const basic::Progress &progress) { Database->openQuery(narrowed, progress); });
    attempt([&](const basic::Progress &progress) { Database->openQuery(text, progress); });
    attempt([&](const basic::Progress &progress) { Database->execute(text, progress); });

    const QByteArray now = Work.bytes();
    if (now.size() != Unmarked.size())
        std::abort();
    for (qsizetype i = 0; i < now.size(); ++i) {
        if (((now[i] ^ Unmarked[i]) & ~(Marked[i] ^ Unmarked[i])) != 0)
            std::abort();
    }
    return 0;
}
