// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// markdiff OLD NEW: how a family database differs from a former state of it. Prints how many persons it has, how many
// are marked, and how many marks differ; ends with 1 where anything else differs.
#include "platform/basic/error.h"
#include "platform/jet/reader/database.h"
#include "platform/jet/reader/record.h"
#include <bit>
#include <cstdio>
#include <QFile>

using namespace kalvenor;
using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const char *name)
{
    QFile file(QString::fromLocal8Bit(name));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", name, qPrintable(file.errorString()));
    return file.readAll();
}

/// Takes the bits of all marks out of `difference`; how many persons are there and how many of them are marked.
std::pair<std::uint32_t, int> takeMarks(const char *name, QByteArray &difference, int &changed)
{
    const auto database = jet::Database::open(QString::fromLocal8Bit(name));
    const auto table = database->table(u"Daten"_s);
    const int column = table->columnOf(u"Markierung");
    const std::uint16_t number = table->columns().at(static_cast<std::size_t>(column)).number;
    int marked = 0;
    for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
        const jet::RowPlace &place = table->place(row);
        const jet::Record record(table->layout(), table->record(row));
        marked += table->boolean(row, column) ? 1 : 0;
        if (!record.has(number))
            continue;
        const qint64 at = qint64{place.recordPage} * database->image()->pageSize() + place.recordStart +
                          static_cast<qint64>(record.maskByte(number));
        const auto bit = static_cast<char>(1 << (number % 8));
        if ((difference[at] & bit) != 0)
            ++changed;
        difference[at] = static_cast<char>(difference[at] & ~bit);
    }
    return {table->rowCount(), marked};
}

} // namespace

int main(int argc, char **argv)
try {
    if (argc != 3)
        return 2;
    const QByteArray before = bytesOf(argv[1]);
    QByteArray difference = bytesOf(argv[2]);
    if (before.size() != difference.size()) {
        std::printf("sizes differ: %lld and %lld bytes\n", static_cast<long long>(before.size()),
                    static_cast<long long>(difference.size()));
        return 1;
    }
    for (qsizetype i = 0; i < before.size(); ++i)
        difference[i] = static_cast<char>(difference[i] ^ before[i]);
    int changed = 0;
    const std::uint32_t persons = takeMarks(argv[1], difference, changed).first;
    const int markedNow = takeMarks(argv[2], difference, changed).second;
    int foreign = 0;
    for (const char byte : difference)
        foreign += std::popcount(static_cast<unsigned char>(byte));
    std::printf("persons %u marked %d changed %d foreign %d\n", persons, markedNow, changed, foreign);
    return foreign == 0 ? 0 : 1;
} catch (const basic::Error &error) {
    std::fprintf(stderr, "markdiff: %s\n", error.what());
    return 1;
}
