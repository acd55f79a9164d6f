// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any text as the name of a filter and as a whole statement: only Error comes out, and whatever it says, nothing but
// mark bits changes in the file.
#include "memorystorage.h"
#include "platform/basic/error.h"
#include "platform/dao/dao.h"
#include "platform/jet/creator/creator.h"
#include "selection/filter/filtern.h"
#include <cstdlib>

using namespace kalvenor;
using namespace Qt::StringLiterals;

namespace {

const QString File = u"/nowhere/fuzzed"_s;

/// A table of persons, all of them marked or none.
MemoryStorage::Bytes family(MemoryStorage &storage, bool marked)
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
    creator.write(File);
    return storage.bytes(File);
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
    static MemoryStorage storage;
    static const MemoryStorage::Bytes Marked = family(storage, true);
    static const MemoryStorage::Bytes Unmarked = family(storage, false);
    static dao::Engine engine;
    static const auto Database = engine.openDatabase(File);

    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString narrowed = selection::filtern({.Presse = text}, basic::DateOrder::DayMonthYear).queries[0];
    attempt([&](const basic::Progress &progress) { Database->openQuery(narrowed, progress); });
    attempt([&](const basic::Progress &progress) { Database->openQuery(text, progress); });
    attempt([&](const basic::Progress &progress) { Database->execute(text, progress); });

    forEachDifference(Unmarked, storage.bytes(File), [](std::size_t at, std::uint8_t changed) {
        if ((changed & ~(Marked[at] ^ Unmarked[at])) != 0)
            std::abort();
    });
    return 0;
}
