// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/marks/markwriter.h"

#include "platform/basic/error.h"
#include "platform/jet/marks/pagelock.h"
#include "platform/jet/reader/datapage.h"
#include "platform/jet/reader/encoding.h"
#include "platform/storage/file.h"
#include <algorithm>
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
    RowPlace place;
    std::size_t inPage = 0; ///< the byte of the null mask, from the start of the record's page
    std::uint8_t bit = 0;   ///< as a mask
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
            if (((m_plain[target.inPage] & target.bit) != 0) == target.on)
                continue;
            const qint64 offset = offsetOf(number) + static_cast<qint64>(target.inPage);
            // Whoever knows no locks can change another bit of the byte until here, and loses nothing by it.
            std::uint8_t now = 0;
            const bool isRead = m_file.readAt(offset, std::span(&now, 1));
            if (!isRead || now != m_raw[target.inPage]) {
                const basic::Argument reason = m_file.errorText();
                confirm(number, written);
                if (!isRead)
                    fail(basic::Fault::PageNotRead, {number, reason});
                changedElsewhere(target);
            }
            m_raw[target.inPage] ^= target.bit;
            m_hasWritten = true;
            if (!m_file.writeAt(offset, std::span(&m_raw[target.inPage], 1))) {
                const basic::Argument reason = m_file.errorText();
                confirm(number, written);
                fail(basic::Fault::PageNotWritten, {number, reason});
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

    /// Reads the page again; rows whose byte is there as written count as changed, in the image too. Where it cannot
    /// be read, they count as written, but the image keeps what it knows.
    bool confirm(std::uint32_t number, const std::vector<const MarkTarget *> &written)
    {
        if (!readPage(number, m_other)) {
            for (const MarkTarget *target : written)
                m_changed.push_back(target->row);
            return false;
        }
        bool all = true;
        for (const MarkTarget *target : written) {
            if (m_other[target->inPage] != m_raw[target->inPage]) {
                all = false;
                continue;
            }
            const std::uint8_t plain = m_plain[target->inPage] ^ target->bit;
            m_image.patch(static_cast<std::size_t>(offsetOf(number)) + target->inPage, plain);
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
    std::vector<std::uint8_t> m_plain;  ///< decoded, as it was before
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
    if (mark.type != ColumnType::Boolean)
        throw basic::Error(basic::Fault::NoYesNoColumn, place(), {mark.name});
    if (m_table->isIndexed(mark.number))
        throw basic::Error(basic::Fault::MarkIndexed, place(), {mark.name});
    if (key.type != ColumnType::Long)
        throw basic::Error(basic::Fault::KeyNotLong, place(), {key.name});
    if (mark.isCalculated())
        throw basic::Error(basic::Fault::MarkCalculated, place(), {mark.name});
}

std::vector<MarkTarget> MarkWriter::plan(std::span<const Mark> marks)
{
    const Column &mark = m_table->columns()[static_cast<std::size_t>(m_markColumn)];
    if (!m_repeatedKeys)
        m_repeatedKeys = repeatedKeys(*m_table, m_keyColumn);
    std::vector<MarkTarget> targets;
    targets.reserve(marks.size());
    bool inOrder = true; // as statements give them
    for (const Mark &wish : marks) {
        if (wish.row >= m_table->rowCount())
            throw basic::Error(basic::Fault::RowMissing, place(), {wish.row});
        m_table->fetchAhead(wish.row);
        const std::optional<std::int32_t> key = m_table->integer(wish.row, m_keyColumn);
        if (!key)
            throw basic::Error(basic::Fault::RowWithoutKey, place(), {wish.row});
        if (std::ranges::binary_search(*m_repeatedKeys, *key))
            throw basic::Error(basic::Fault::KeyRepeated, place(), {*key});
        const Record record(m_table->layout(), m_table->record(wish.row));
        if (!record.has(mark.number))
            throw basic::Error(basic::Fault::RecordTooOld, place(), {*key, mark.name});
        const RowPlace &at = m_table->place(wish.row);
        if (!targets.empty())
            inOrder &= targets.back().row < wish.row && targets.back().place.recordPage <= at.recordPage;
        targets.push_back({wish.row, wish.on, at, at.recordStart + record.maskByte(mark.number),
                           static_cast<std::uint8_t>(1U << (mark.number % 8))});
    }
    if (inOrder)
        return targets;
    std::ranges::stable_sort(
        targets, {}, [](const MarkTarget &target) { return std::pair(target.place.recordPage, target.inPage); });
    // Of several wishes for one row the last one counts.
    const auto behind = std::unique(targets.rbegin(), targets.rend(),
                                    [](const MarkTarget &a, const MarkTarget &b) { return a.row == b.row; });
    targets.erase(targets.begin(), behind.base());
    return targets;
}

basic::Place MarkWriter::place() const
{
    return {.file = m_database->file(), .table = m_table->name()};
}

std::vector<std::uint32_t> MarkWriter::write(std::span<const Mark> marks, const basic::Progress &progress)
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

    const std::vector<MarkTarget> targets = plan(marks);
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
    }
    afterFailure.dismiss();
    if (progress)
        progress(total, total);
    return run.takeChanged();
}

void MarkWriter::requireWritable() const
{
    openForWriting(m_database->file());
}

} // namespace kalvenor::jet
