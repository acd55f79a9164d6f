// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/marks/markwriter.h"

#include "platform/basic/error.h"
#include "platform/jet/marks/pagelock.h"
#include "platform/jet/reader/datapage.h"
#include "platform/jet/reader/encoding.h"
#include "platform/storage/file.h"
#include <algorithm>
#include <array>
#include <limits>
#include <QFileInfo>
#include <QScopeGuard>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

/// One bit to be set, with all that the file must still say about its row.
struct MarkTarget {
    std::uint32_t row = 0;
    bool on = false;
    std::uint8_t bit = 0; ///< as a mask
    std::uint8_t unknown =
        0; ///< bits of the same byte that mean nothing yet and are to be 0; only where the row is raised
    std::uint8_t columns = 0; ///< what its count of columns is raised to; 0 where it is not
    RowPlace place;
    std::size_t inPage = 0; ///< the byte of the null mask, from the start of the record's page

    bool isAsWished(std::uint8_t mask) const { return columns == 0 && ((mask & bit) != 0) == on; }
    std::uint8_t newMask(std::uint8_t mask) const
    {
        return static_cast<std::uint8_t>((on ? mask | bit : mask & ~bit) & ~unknown);
    }
};

namespace {

constexpr std::size_t PagesPerReport = 64;

/// Asks the file's own permissions, because an administrator may write everywhere.
bool hasWriteBit(const QFileInfo &info)
{
    const QFile::Permissions anybody = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return (info.permissions() & anybody) != 0;
}

/// A folder without write permission counts as a read-only medium: other programs cannot put a lock file there and
/// take the database as read-only. (On Windows the attribute of a folder has another meaning.)
bool isFolderReadOnly(const QString &file)
{
#ifdef Q_OS_WIN
    Q_UNUSED(file)
    return false;
#else
    const QFileInfo folder(QFileInfo(file).absolutePath());
    return !hasWriteBit(folder) || !folder.isWritable();
#endif
}

storage::File openForWriting(const QString &name)
{
    const auto readOnly = [&name](basic::Fault fault, std::vector<basic::Argument> arguments = {}) {
        return basic::Error(fault, {.file = name}, std::move(arguments)).with(basic::Fault::NothingChanged);
    };
    const QFileInfo info(name);
    if (info.exists() && !hasWriteBit(info))
        throw readOnly(basic::Fault::ReadOnlyFile);
    if (info.exists() && isFolderReadOnly(name))
        throw readOnly(basic::Fault::ReadOnlyFolder);
    basic::Argument reason;
    storage::File file = storage::File::open(basic::NativePath(name), storage::File::Mode::ReadWrite, &reason);
    if (file.isOpen())
        return file;
    if (file.fault() == storage::FileFault::NotFound)
        throw basic::Error(basic::Fault::FileGone, {.file = name});
    throw readOnly(basic::Fault::NotOpenedForWriting, {reason});
}

/// False where another file has that name now.
bool isInItsPlace(const storage::File &file, const basic::NativePath &name)
{
    const storage::File now = storage::File::open(name, storage::File::Mode::Read, nullptr);
    return now.isOpen() && now.state().identity == file.state().identity;
}

/// The keys that occur more than once, ascending.
std::vector<std::int32_t> repeatedKeys(const Table &table, int keyColumn)
{
    std::vector<std::int32_t> keys;
    keys.reserve(table.rowCount());
    std::int64_t lowest = std::numeric_limits<std::int32_t>::max();
    std::int64_t highest = std::numeric_limits<std::int32_t>::min();
    for (std::uint32_t row = 0; row < table.rowCount(); ++row) {
        table.fetchAhead(row);
        if (const std::optional<std::int32_t> key = table.integer(row, keyColumn)) {
            keys.push_back(*key);
            lowest = std::min<std::int64_t>(lowest, *key);
            highest = std::max<std::int64_t>(highest, *key);
        }
    }
    std::vector<std::int32_t> repeated;
    const auto range = static_cast<std::size_t>(std::max<std::int64_t>(highest - lowest + 1, 0));
    if (range <= 64 * keys.size()) {
        std::vector<bool> seen(range);
        for (const std::int32_t key : keys) {
            const auto at = static_cast<std::size_t>(key - lowest);
            if (seen[at])
                repeated.push_back(key);
            seen[at] = true;
        }
        std::ranges::sort(repeated);
        return repeated;
    }
    std::ranges::sort(keys);
    for (std::size_t i = 1; i < keys.size(); ++i) {
        if (keys[i] == keys[i - 1])
            repeated.push_back(keys[i]);
    }
    return repeated;
}

/// The row's null mask has room for the column's bit, and the columns between its own and that one need no bytes: they
/// are Yes/No, or have their (empty) place among those of variable length already.
bool canBeRaised(const Table &table, const Record &record, std::uint16_t column)
{
    const std::uint32_t own = record.columnCount();
    if (own == 0 || (own - 1) / 8 != column / 8U || column >= table.layout().greatestColumns)
        return false;
    std::uint32_t next = own;
    for (const Column &between : table.columns()) {
        if (between.number < own || between.number >= column)
            continue;
        if (between.number != next++) // one that was deleted; nobody knows what it was
            return false;
        const bool isEmpty = between.type == ColumnType::Boolean ||
                             (!between.isFixed() && between.variableIndex < record.variableCount());
        if (!isEmpty)
            return false;
    }
    return next == column;
}

/// The writes of one call: page by page, each locked, verified before and after.
class Run {
public:
    Run(Image &image, const Table &table, const Column &key, const basic::Place &place, storage::File &file)
        : m_image(image), m_table(table), m_key(key), m_place(place), m_file(file), m_locks(file, place.file),
          m_raw(image.pageSize()), m_plain(image.pageSize()), m_other(image.pageSize())
    {
    }

    /// Something was written, whether it could be confirmed or not.
    bool hasWritten() const { return m_hasWritten; }
    /// Every page written was before, and is now, as the image has it: nobody else wrote to them meanwhile.
    bool wroteAlone()
    {
        return !m_metOthers && std::ranges::all_of(m_pages, [this](std::uint32_t number) {
            if (!readPage(number, m_other))
                return false;
            decode(number, m_other);
            return std::ranges::equal(m_other, m_image.page(number));
        });
    }
    std::vector<std::uint32_t> takeChanged() { return std::move(m_changed); }

    [[noreturn]] void fail(basic::Fault fault, std::vector<basic::Argument> arguments = {}) const
    {
        const basic::Error error(fault, m_place, std::move(arguments));
        throw m_changed.empty() ? error.with(basic::Fault::NothingChanged)
                                : error.with(basic::Fault::RowsChangedBefore, {m_changed.size()});
    }

    /// All targets have their records on the same page.
    void writePage(std::span<const MarkTarget> targets)
    {
        const std::uint32_t number = targets.front().place.recordPage;
        const PageLock lock(m_locks, number);
        if (!lock.isHeld())
            fail(basic::Fault::PageLocked, {number});
        if (!readPage(number, m_raw))
            fail(basic::Fault::PageNotRead, {number, m_file.errorText()});
        m_plain = m_raw;
        decode(number, m_plain);
        m_metOthers = m_metOthers || !std::ranges::equal(m_plain, m_image.page(number));
        Q_ASSERT(std::ranges::all_of(targets, [&](const MarkTarget &target) {
            return target.place.recordPage == number && target.inPage < m_raw.size();
        }));
        for (const MarkTarget &target : targets)
            verify(target);

        std::vector<const MarkTarget *> written;
        for (const MarkTarget &target : targets) {
            const std::uint8_t mask = m_plain[target.inPage];
            if (target.isAsWished(mask))
                continue;
            try {
                writeByte(target, target.inPage, target.newMask(mask));
                // Only now the row has the bit: what is half done says the same as before.
                if (target.columns != 0)
                    writeByte(target, target.place.recordStart, target.columns);
            } catch (const basic::Error &error) {
                confirm(number, written); // the message counts what was changed
                fail(error.fault(), error.parts().front().arguments);
            }
            written.push_back(&target);
        }
        if (written.empty())
            return;
        m_pages.push_back(number);
        if (!confirm(number, written))
            fail(basic::Fault::PageNotConfirmed, {number});
    }

private:
    qint64 offsetOf(std::uint32_t page) const { return static_cast<qint64>(page) * m_image.pageSize(); }

    bool readPage(std::uint32_t number, std::span<std::uint8_t> into) const
    {
        return m_file.readAt(offsetOf(number), into);
    }
    void decode(std::uint32_t number, std::span<std::uint8_t> page) const
    {
        if (m_image.encodingKey() != 0)
            encodePage(page, m_image.encodingKey(), number);
    }

    void writeByte(const MarkTarget &target, std::size_t inPage, std::uint8_t plain)
    {
        const std::uint32_t number = target.place.recordPage;
        const qint64 offset = offsetOf(number) + static_cast<qint64>(inPage);
        // Whoever knows no locks can change another bit of the byte until here, and loses nothing by it.
        std::uint8_t now = 0;
        if (!m_file.readAt(offset, std::span(&now, 1)))
            fail(basic::Fault::PageNotRead, {number, m_file.errorText()});
        if (now != m_raw[inPage])
            changedElsewhere(target);
        m_raw[inPage] = static_cast<std::uint8_t>(m_raw[inPage] ^ m_plain[inPage] ^ plain);
        m_plain[inPage] = plain;
        m_hasWritten = true;
        if (!m_file.writeAt(offset, std::span(&m_raw[inPage], 1)))
            fail(basic::Fault::PageNotWritten, {number, m_file.errorText()});
    }

    /// Reads the page again; rows whose bytes are there as written count as changed, in the image too. Where it cannot
    /// be read, they count as written, but the image keeps what it knows.
    bool confirm(std::uint32_t number, const std::vector<const MarkTarget *> &written)
    {
        const bool isRead = readPage(number, m_other);
        bool all = isRead;
        for (const MarkTarget *target : written) {
            std::array<std::size_t, 2> bytes{target->inPage,
                                             target->columns != 0 ? target->place.recordStart : target->inPage};
            const bool isThere =
                isRead && std::ranges::all_of(bytes, [this](std::size_t byte) { return m_other[byte] == m_raw[byte]; });
            all = all && isThere;
            for (const std::size_t byte : bytes) {
                if (isThere)
                    m_image.patch(static_cast<std::size_t>(offsetOf(number)) + byte, m_plain[byte]);
            }
            if (isThere || !isRead)
                m_changed.push_back(target->row);
        }
        return all;
    }

    /// The file's page, in m_plain, must still say the same of the row as the image.
    void verify(const MarkTarget &target)
    {
        const RowPlace &place = target.place;
        const DataPage now(m_image.version(), m_plain);
        const DataPage before(m_image.version(), m_image.page(place.recordPage));
        const std::optional<Slot> slot =
            now.isDataOf(m_table.definitionPage()) ? now.slot(place.recordSlot) : std::nullopt;
        if (!slot || slot != before.slot(place.recordSlot) || slot->start != place.recordStart ||
            slot->length != place.recordLength)
            changedElsewhere(target);
        const Record record(m_table.layout(), now.bytes(*slot));
        const Record known(m_table.layout(), m_table.record(target.row));
        const auto key = record.field(m_key);
        const auto knownKey = known.field(m_key);
        if (record.columnCount() != known.columnCount() || !key || !knownKey || !std::ranges::equal(*key, *knownKey))
            changedElsewhere(target);
        // The other bits of the byte are other columns, as changeable as any.
        const std::uint8_t mask = before.bytes(*slot)[target.inPage - place.recordStart];
        if (((m_plain[target.inPage] ^ mask) & target.bit) != 0)
            changedElsewhere(target);
        if (place.firstPage != place.recordPage || place.firstSlot != place.recordSlot)
            verifyFirstPlace(target);
    }

    void verifyFirstPlace(const MarkTarget &target)
    {
        const RowPlace &place = target.place;
        const auto pageOf = [this](std::uint32_t number) -> std::span<const std::uint8_t> {
            if (number >= m_image.pageCount() || !readPage(number, m_other))
                return {};
            decode(number, m_other);
            return m_other;
        };
        const DataPage now(m_image.version(), pageOf(place.firstPage));
        const std::optional<Slot> slot =
            now.isDataOf(m_table.definitionPage()) ? now.slot(place.firstSlot) : std::nullopt;
        if (slot && slot->flags == Slot::Overflow) {
            const auto record = followOverflow(m_image.version(), m_table.definitionPage(), now.bytes(*slot), pageOf);
            if (record && record->page == place.recordPage && record->index == place.recordSlot)
                return;
        }
        changedElsewhere(target);
    }

    [[noreturn]] void changedElsewhere(const MarkTarget &target) const
    {
        fail(basic::Fault::RowChanged, {target.place.firstSlot, target.place.firstPage});
    }

    Image &m_image;
    const Table &m_table;
    const Column &m_key;
    const basic::Place &m_place;
    storage::File &m_file;
    PageLocks m_locks;
    std::vector<std::uint32_t> m_pages; ///< those written
    std::vector<std::uint8_t> m_raw;    ///< the page as the file has it, with the bits set as they are written
    std::vector<std::uint8_t> m_plain;  ///< the same decoded
    std::vector<std::uint8_t> m_other;
    std::vector<std::uint32_t> m_changed;
    bool m_hasWritten = false;
    bool m_metOthers = false; ///< a page was not as the image has it
};

} // namespace

bool isWriteProtected(const QString &file)
{
    try {
        openForWriting(file);
        return false;
    } catch (const basic::Error &error) {
        return error.kind() == basic::ErrorKind::ReadOnly;
    }
}

MarkWriter::MarkWriter(std::shared_ptr<Database> database, std::shared_ptr<const Table> table, int markColumn,
                       int keyColumn)
    : m_database(std::move(database)), m_table(std::move(table)), m_markColumn(markColumn), m_keyColumn(keyColumn)
{
    const std::vector<Column> &columns = m_table->columns();
    const auto count = static_cast<int>(columns.size());
    if (markColumn < 0 || markColumn >= count || keyColumn < 0 || keyColumn >= count)
        throw basic::Error(basic::Fault::MarkColumnMissing, place());
    const Column &mark = columns[static_cast<std::size_t>(markColumn)];
    const Column &key = columns[static_cast<std::size_t>(keyColumn)];
    if (&m_table->image() != m_database->image().get())
        throw basic::Error(basic::Fault::TableOutdated, place());
    if (m_database->missingPages() > 0)
        throw m_database->incomplete(basic::Fault::IncompleteNotMarked);
    if (mark.type != ColumnType::Boolean)
        throw basic::Error(basic::Fault::NoYesNoColumn, place(), {mark.name});
    if (m_table->isIndexed(mark.number))
        throw basic::Error(basic::Fault::MarkIndexed, place(), {mark.name});
    if (key.type != ColumnType::Long)
        throw basic::Error(basic::Fault::KeyNotLong, place(), {key.name});
    if (mark.isCalculated())
        throw basic::Error(basic::Fault::MarkCalculated, place(), {mark.name});
}

basic::Fault MarkWriter::obstacle(std::uint32_t row)
{
    if (!m_repeatedKeys)
        m_repeatedKeys = repeatedKeys(*m_table, m_keyColumn);
    const std::optional<std::int32_t> key = m_table->integer(row, m_keyColumn);
    if (!key)
        return basic::Fault::RowWithoutKey;
    if (std::ranges::binary_search(*m_repeatedKeys, *key))
        return basic::Fault::KeyRepeated;
    return canMark(row) ? basic::Fault::None : basic::Fault::RecordTooOld;
}

bool MarkWriter::canMark(std::uint32_t row) const
{
    const Record record(m_table->layout(), m_table->record(row));
    const std::uint16_t mark = m_table->columns()[static_cast<std::size_t>(m_markColumn)].number;
    return record.has(mark) || canBeRaised(*m_table, record, mark);
}

std::vector<MarkTarget> MarkWriter::plan(std::span<const Mark> marks, std::vector<LeftRow> &left)
{
    const std::uint16_t mark = m_table->columns()[static_cast<std::size_t>(m_markColumn)].number;
    std::vector<Mark> wishes(marks.begin(), marks.end());
    const auto isNotBefore = [](const Mark &a, const Mark &b) {
        return a.row >= b.row;
    };
    if (std::ranges::adjacent_find(wishes, isNotBefore) != wishes.end()) { // statements give them in order
        std::ranges::stable_sort(wishes, {}, &Mark::row);
        // Of several wishes for one row the last one counts.
        const auto behind =
            std::unique(wishes.rbegin(), wishes.rend(), [](const Mark &a, const Mark &b) { return a.row == b.row; });
        wishes.erase(wishes.begin(), behind.base());
    }
    std::vector<MarkTarget> targets;
    targets.reserve(wishes.size());
    bool inOrder = true;
    for (const Mark &wish : wishes) {
        if (wish.row >= m_table->rowCount())
            throw basic::Error(basic::Fault::RowMissing, place(), {wish.row});
        m_table->fetchAhead(wish.row);
        const Record record(m_table->layout(), m_table->record(wish.row));
        const bool isAsWished = record.bit(mark) == wish.on;
        const basic::Fault why = obstacle(wish.row);
        if (why != basic::Fault::None && !isAsWished)
            left.push_back({wish.row, why});
        if (why != basic::Fault::None || (isAsWished && !record.has(mark)))
            continue;
        MarkTarget target{.row = wish.row,
                          .on = wish.on,
                          .bit = static_cast<std::uint8_t>(1U << (mark % 8)),
                          .place = m_table->place(wish.row)};
        target.inPage = target.place.recordStart + record.maskByte(mark);
        if (!record.has(mark)) {
            target.columns = static_cast<std::uint8_t>(mark + 1);
            target.unknown = static_cast<std::uint8_t>((0xffU << (record.columnCount() % 8)) & (target.bit - 1U));
        }
        inOrder = inOrder && (targets.empty() || targets.back().place.recordPage <= target.place.recordPage);
        targets.push_back(target);
    }
    if (!inOrder)
        std::ranges::stable_sort(
            targets, {}, [](const MarkTarget &target) { return std::pair(target.place.recordPage, target.inPage); });
    return targets;
}

basic::Place MarkWriter::place() const
{
    return {.file = m_database->file(), .table = m_table->name()};
}

MarksWritten MarkWriter::write(std::span<const Mark> marks, const basic::Progress &progress)
{
    storage::File file = openForWriting(m_database->file());
    Image &image = *m_database->image();
    const std::vector<Column> &columns = m_table->columns();
    const Column &key = columns[static_cast<std::size_t>(m_keyColumn)];
    const basic::Place where = place();
    Run run(image, *m_table, key, where, file);
    const Stamp before = Image::stampOf(m_database->file(), file);
    if (before != image.stamp())
        run.fail(basic::Fault::FileChanged);

    MarksWritten result;
    const std::vector<MarkTarget> targets = plan(marks, result.left);
    const auto total = static_cast<qint64>(targets.size());
    auto afterFailure = qScopeGuard([&] { // whatever it was; it is the one to tell
        if (!run.hasWritten())
            return;
        file.sync();
        image.setStamp({}); // stale, also where the clock of the disk is too coarse to show it
    });
    std::size_t pages = 0;
    for (auto first = targets.begin(); first != targets.end(); ++pages) {
        if (pages % PagesPerReport == 0 && progress && !progress(first - targets.begin(), total))
            run.fail(basic::Fault::StoppedMarking);
        const auto last =
            std::find_if(first, targets.end(), [page = first->place.recordPage](const MarkTarget &target) {
                return target.place.recordPage != page;
            });
        run.writePage(std::span(first, last));
        first = last;
    }
    if (run.hasWritten()) {
        if (!file.sync())
            run.fail(basic::Fault::NotSynced, {file.errorText()});
        const Stamp after = Image::stampOf(m_database->file(), file);
        const bool alone = after.size == before.size && after.counters == before.counters && run.wroteAlone();
        image.setStamp(alone ? after : Stamp());
        // A compacted one, with the old marks, can have come meanwhile.
        if (!isInItsPlace(file, basic::NativePath(m_database->file())))
            run.fail(basic::Fault::FileChanged);
    }
    afterFailure.dismiss();
    if (progress)
        progress(total, total);
    result.changed = run.takeChanged();
    return result;
}

void MarkWriter::requireWritable() const
{
    openForWriting(m_database->file());
}

} // namespace kalvenor::jet
