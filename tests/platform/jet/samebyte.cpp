// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// samebyte locking|careless RUNS: marks all persons while a second process changes another bit of the very bytes that
// hold the marks, right where the marks are being written. It takes the locks of a page, as another Kalvenor does, or
// none at all. Tells how many of its changes were made and lost. Fails where a locking one lost any.
#include "platform/jet/creator/creator.h"
#include "platform/jet/marks/markwriter.h"
#include "platform/jet/marks/pagelock.h"
#include "platform/jet/reader/record.h"
#include "support/errors.h"
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <QTemporaryDir>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace kalvenor;

namespace {

constexpr int Persons = 20000;

/// What both processes see.
struct Shared {
    std::atomic<bool> begin;
    std::atomic<bool> end;
    std::atomic<std::uint64_t> changes;
    std::atomic<bool> other[Persons]; ///< the other bit as the second process left it
};

/// The mask byte of a person: Markierung is its bit 1, Lebt its bit 2.
struct MaskByte {
    std::uint32_t page = 0;
    qint64 offset = 0;
};
constexpr std::uint8_t Marked = 2;
constexpr std::uint8_t Alive = 4;

void makeFamily(const QString &file)
{
    jet::Creator creator;
    auto &table = creator.addTable(u"Daten"_s,
                                   {{.name = u"Counter"_s},
                                    {.name = u"Markierung"_s, .type = jet::ColumnType::Boolean},
                                    {.name = u"Lebt"_s, .type = jet::ColumnType::Boolean}},
                                   {{u"Counter"_s, {u"Counter"_s}}});
    for (int i = 1; i <= Persons; ++i)
        table.addRow({i, false, false});
    creator.write(file);
}

/// Stays ahead of the writer: changes the other bit of persons that are not marked yet, a few behind the last marked
/// one, over and over.
void follow(const QString &name, const std::vector<MaskByte> &bytes, bool locks, Shared &shared)
{
    storage::File file = storage::File::open(basic::NativePath(name), storage::File::Mode::ReadWrite, nullptr);
    jet::PageLocks pages(file, name);
    constexpr std::size_t ahead = 12;
    std::size_t front = 0;
    while (!shared.begin) {
    }
    const auto read = [&](std::size_t person) {
        std::uint8_t byte = 0;
        file.readAt(bytes[person].offset, std::span(&byte, 1));
        return byte;
    };
    while (!shared.end && front < bytes.size()) {
        while (front < bytes.size() && (read(front) & Marked) != 0)
            ++front;
        for (std::size_t person = front; person < std::min(front + ahead, bytes.size()); ++person) {
            std::optional<jet::PageLock> lock;
            if (locks)
                lock.emplace(pages, bytes[person].page);
            if (lock && !lock->isHeld())
                continue;
            std::uint8_t byte = read(person) ^ Alive;
            if (!locks && (byte & Marked) != 0)
                continue; // else it is this one who undoes marks
            file.writeAt(bytes[person].offset, std::span(&byte, 1));
            shared.other[person] = (byte & Alive) != 0;
            ++shared.changes;
        }
    }
}

struct Outcome {
    std::uint64_t changes = 0;
    int lost = 0;
    int marksLost = 0;
    bool succeeded = false;
};

Outcome runOnce(const QString &name, bool locks, Shared &shared)
{
    makeFamily(name);
    const auto database = jet::Database::open(name);
    const auto table = database->table(u"Daten"_s);
    std::vector<MaskByte> bytes;
    std::vector<jet::Mark> marks;
    for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
        const jet::RowPlace &place = table->place(row);
        const std::size_t mask = jet::Record(table->layout(), table->record(row)).maskByte(1);
        bytes.push_back(
            {place.recordPage, qint64{place.recordPage} * 4096 + place.recordStart + static_cast<qint64>(mask)});
        marks.push_back({row, true});
    }
    shared.begin = false;
    shared.end = false;
    shared.changes = 0;
    for (auto &other : shared.other)
        other = false;
    const pid_t second = ::fork();
    if (second == 0) {
        follow(name, bytes, locks, shared);
        std::_Exit(0);
    }
    const auto bothAtWork = [&shared](qint64, qint64) {
        shared.begin = true; // the file was looked at and is as it was read
        while (shared.changes == 0) {
        }
        return true;
    };
    Outcome outcome;
    outcome.succeeded = !test::thrownBy([&] { jet::MarkWriter(database, table, 1, 0).write(marks, bothAtWork); });
    shared.end = true;
    ::waitpid(second, nullptr, 0);
    outcome.changes = shared.changes;
    const storage::File file = storage::File::open(basic::NativePath(name), storage::File::Mode::Read, nullptr);
    for (std::size_t person = 0; person < bytes.size(); ++person) {
        std::uint8_t byte = 0;
        file.readAt(bytes[person].offset, std::span(&byte, 1));
        outcome.lost += ((byte & Alive) != 0) != shared.other[person];
        outcome.marksLost += outcome.succeeded && (byte & Marked) == 0;
    }
    return outcome;
}

} // namespace

int main(int argc, char **argv)
{
    const QString mode = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    const int runs = argc > 2 ? std::atoi(argv[2]) : 0;
    const bool locks = mode == u"locking";
    if ((!locks && mode != u"careless") || runs < 1) {
        std::fputs("samebyte locking|careless RUNS\n", stderr);
        return 2;
    }
    auto *const shared = static_cast<Shared *>(
        ::mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    const QTemporaryDir folder;
    Outcome sum;
    int succeeded = 0;
    int silentLosses = 0;
    for (int run = 0; run < runs; ++run) {
        const Outcome outcome = runOnce(folder.filePath(u"familie.mdb"_s), locks, *shared);
        sum.changes += outcome.changes;
        sum.lost += outcome.lost;
        sum.marksLost += outcome.marksLost;
        succeeded += outcome.succeeded;
        silentLosses += outcome.succeeded && outcome.lost > 0;
    }
    std::printf("%s: %d runs, %llu changes by the other process, %d of them lost, %d marks lost; %d runs without an "
                "error, %d of these with a loss\n",
                argv[1], runs, static_cast<unsigned long long>(sum.changes), sum.lost, sum.marksLost, succeeded,
                silentLosses);
    return locks && sum.lost + sum.marksLost > 0 ? 1 : 0;
}
