// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "reliability/foreignwriter.h"

#include "platform/jet/creator/creator.h"
#include "platform/jet/reader/datapage.h"
#include "platform/jet/reader/record.h"
#include <bit>
#include <cstdio>
#include <cstdlib>
#include <QFile>
#include <thread>

using namespace kalvenor;
using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t SlotTable = 14;
constexpr std::uint16_t OffsetMask = 0x1fff;

void put16(std::uint8_t *to, std::size_t value)
{
    to[0] = static_cast<std::uint8_t>(value);
    to[1] = static_cast<std::uint8_t>(value >> 8);
}

void put32(std::uint8_t *to, std::uint32_t value)
{
    put16(to, value & 0xffff);
    put16(to + 2, value >> 16);
}

jet::NewValue valueOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QByteArray:
        return value.toByteArray();
    default:
        return {};
    }
}

void require(bool met, const char *what)
{
    if (met)
        return;
    std::fprintf(stderr, "the foreign writer: %s\n", what);
    std::exit(3);
}

} // namespace

ForeignWriter::ForeignWriter(const QString &file, bool careful) : m_name(file), m_careful(careful)
{
    open();
    makeRoom();
}

void ForeignWriter::open()
{
    m_file = storage::File::open(m_name, storage::File::Mode::ReadWrite, nullptr);
    require(m_file.isOpen(), "the file cannot be opened");
    m_locks = std::make_unique<jet::PageLocks>(m_file, m_name);
    m_expected.resize(static_cast<std::size_t>(m_file.size()));
    require(m_file.readAt(0, m_expected), "the file cannot be read");
    const auto table = jet::Database::open(m_name)->table(u"Daten"_s);
    const auto column = [&table](QStringView name) -> const jet::Column & {
        return table->columns().at(static_cast<std::size_t>(table->columnOf(name)));
    };
    m_definition = table->definitionPage();
    m_markNumber = column(u"Markierung").number;
    m_keyAt = 2 + column(u"Counter").fixedOffset;
    m_numberAt = 2 + column(u"geaendert").fixedOffset;
    const std::uint16_t birth = column(u"Geburtsdatum").number;
    require(birth / 8 == m_markNumber / 8, "no other column has a bit in the byte of the mark");
    m_neighbour = static_cast<std::uint8_t>(1 << birth % 8);
    m_pages.clear();
    m_persons.clear();
    for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
        const jet::RowPlace &place = table->place(row);
        require(place.firstPage == place.recordPage, "rows are moved from the beginning");
        m_persons.push_back({place.recordPage, place.recordSlot});
        if (m_pages.empty() || m_pages.back() != place.recordPage)
            m_pages.push_back(place.recordPage);
        m_nextKey = std::max(m_nextKey, table->integer(row, table->columnOf(u"Counter")).value_or(0) + 1);
    }
}

/// The last persons of every page go, so that there is room for others.
void ForeignWriter::makeRoom()
{
    for (const std::uint32_t number : m_pages) {
        Bytes page = readPage(number);
        for (int i = 0; i < 3 && jet::load16(&page[12]) > 4; ++i) {
            const auto last = static_cast<std::uint8_t>(jet::load16(&page[12]) - 1);
            std::erase_if(m_persons, [&](const Person &each) { return each.page == number && each.slot == last; });
            dropLast(page);
        }
        std::ranges::copy(page, m_expected.begin() + static_cast<std::ptrdiff_t>(number * PageSize));
    }
    require(m_file.writeAt(0, m_expected), "the file cannot be written");
}

ForeignWriter::Bytes ForeignWriter::readPage(std::uint32_t page) const
{
    Bytes bytes(PageSize);
    require(m_file.readAt(qint64{page} * PageSize, bytes), "a page cannot be read");
    return bytes;
}

template <class Change>
void ForeignWriter::onPage(std::uint32_t page, Change change)
{
    std::optional<jet::PageLock> lock;
    while (m_careful && !(lock && lock->isHeld()))
        lock.emplace(*m_locks, page);
    Bytes bytes = readPage(page);
    const Bytes before = bytes;
    change(bytes);
    const qint64 start = qint64{page} * PageSize;
    for (std::size_t i = 0; i < PageSize; ++i)
        m_expected[static_cast<std::size_t>(start) + i] ^= static_cast<std::uint8_t>(bytes[i] ^ before[i]);
    if (m_careful) {
        require(m_file.writeAt(start, bytes), "a page cannot be written");
        return;
    }
    for (std::size_t i = 0; i < PageSize; ++i) {
        if (bytes[i] != before[i])
            require(m_file.writeAt(start + static_cast<qint64>(i), std::span(&bytes[i], 1)), "nothing can be written");
    }
}

ForeignWriter::Person *ForeignWriter::someoneAtHome()
{
    for (int i = 0; i < 100; ++i) {
        Person &person = m_persons[below(m_persons.size())];
        if (person.movedTo == 0)
            return &person;
    }
    return nullptr;
}

std::size_t ForeignWriter::maskByte(const Bytes &page, std::uint8_t slot) const
{
    const auto found = jet::DataPage(jet::Version::Jet4, page).slot(slot);
    require(found.has_value(), "a row is not where it was");
    const std::size_t columns = jet::load16(&page[found->start]);
    return found->start + found->length - (columns + 7) / 8 + m_markNumber / 8;
}

void ForeignWriter::freezeMark(const Person &person, const Bytes &page)
{
    const std::size_t at = maskByte(page, person.slot);
    const auto bit = static_cast<std::uint8_t>(1 << m_markNumber % 8);
    std::uint8_t &expected = m_expected[person.page * PageSize + at];
    expected = static_cast<std::uint8_t>((expected & ~bit) | (page[at] & bit));
}

ForeignWriter::Bytes ForeignWriter::recordOf(const Bytes &page, std::uint8_t slot)
{
    const auto found = jet::DataPage(jet::Version::Jet4, page).slot(slot);
    require(found.has_value(), "a row is not where it was");
    const auto bytes = std::span(page).subspan(found->start, found->length);
    return {bytes.begin(), bytes.end()};
}

std::uint8_t ForeignWriter::append(Bytes &page, const Bytes &record, std::uint16_t flags)
{
    const std::size_t count = jet::load16(&page[12]);
    const std::size_t end =
        count == 0 ? PageSize : jet::load16(&page[SlotTable + 2 * (count - 1)]) & std::size_t{OffsetMask};
    const std::size_t start = end - record.size();
    std::ranges::copy(record, page.begin() + static_cast<std::ptrdiff_t>(start));
    put16(&page[SlotTable + 2 * count], start | flags);
    put16(&page[12], count + 1);
    put16(&page[2], jet::load16(&page[2]) - record.size() - 2);
    return static_cast<std::uint8_t>(count);
}

void ForeignWriter::dropLast(Bytes &page)
{
    const std::size_t count = jet::load16(&page[12]);
    const Bytes record = recordOf(page, static_cast<std::uint8_t>(count - 1));
    put16(&page[12], count - 1);
    put16(&page[2], jet::load16(&page[2]) + record.size() + 2);
}

std::uint32_t ForeignWriter::pageWithRoom(std::size_t length, std::uint32_t except)
{
    for (int i = 0; i < 20; ++i) {
        const std::uint32_t number = m_pages[below(m_pages.size())];
        const Bytes page = readPage(number);
        if (number != except && jet::load16(&page[2]) >= length + 2 && jet::load16(&page[12]) < 250)
            return number;
    }
    return 0;
}

void ForeignWriter::changeValue()
{
    if (const Person *person = someoneAtHome()) {
        onPage(person->page, [&](Bytes &page) {
            const auto slot = jet::DataPage(jet::Version::Jet4, page).slot(person->slot);
            put32(&page[slot->start + m_numberAt], static_cast<std::uint32_t>(m_random()));
        });
        ++done["values"];
    }
}

void ForeignWriter::changeNeighbour()
{
    if (const Person *person = someoneAtHome()) {
        onPage(person->page, [&](Bytes &page) { page[maskByte(page, person->slot)] ^= m_neighbour; });
        ++done["bits beside marks"];
    }
}

void ForeignWriter::addPerson()
{
    const Person *const like = someoneAtHome();
    if (like == nullptr)
        return;
    Bytes record = recordOf(readPage(like->page), like->slot);
    put32(&record[m_keyAt], static_cast<std::uint32_t>(m_nextKey));
    const std::uint32_t number = pageWithRoom(record.size(), 0);
    if (number == 0)
        return;
    Person added{number};
    onPage(number, [&](Bytes &page) { added.slot = append(page, record, 0); });
    onPage(m_definition, [&](Bytes &page) { put32(&page[16], jet::load32(&page[16]) + 1); });
    m_persons.push_back(added);
    ++m_nextKey;
    ++done["added"];
}

void ForeignWriter::deletePerson()
{
    const Person *const person = someoneAtHome();
    if (person == nullptr || m_persons.size() < 100)
        return;
    onPage(person->page, [&](Bytes &page) {
        freezeMark(*person, page);
        if (person->slot + 1 == jet::load16(&page[12]))
            dropLast(page);
        else
            page[SlotTable + 2 * person->slot + 1] |= 0xc0; // deleted
    });
    onPage(m_definition, [&](Bytes &page) { put32(&page[16], jet::load32(&page[16]) - 1); });
    m_persons.erase(m_persons.begin() + (person - m_persons.data()));
    ++done["deleted"];
}

void ForeignWriter::movePerson()
{
    Person *const person = someoneAtHome();
    if (person == nullptr)
        return;
    const std::uint32_t target = pageWithRoom(recordOf(readPage(person->page), person->slot).size(), person->page);
    if (target == 0)
        return;
    onPage(person->page, [&](Bytes &home) {
        freezeMark(*person, home);
        std::uint8_t slot = 0;
        const Bytes record = recordOf(home, person->slot);
        onPage(target, [&](Bytes &page) { slot = append(page, record, jet::Slot::Hidden); });
        person->movedTo = target << 8 | slot;
        const std::size_t word = SlotTable + 2 * std::size_t{person->slot};
        put32(&home[jet::load16(&home[word]) & OffsetMask], person->movedTo);
        home[word + 1] |= jet::Slot::Overflow >> 8;
    });
    ++done["moved"];
}

void ForeignWriter::compact(const std::function<void()> &atLast)
{
    jet::Creator creator;
    const auto database = jet::Database::open(m_name);
    for (const jet::CatalogueEntry &entry : database->entries()) {
        if (entry.system)
            continue;
        const auto table = database->table(entry.name);
        std::vector<jet::NewColumn> columns;
        for (const jet::Column &column : table->columns())
            columns.push_back({.name = column.name,
                               .type = column.type,
                               .length = column.type == jet::ColumnType::Text ? column.length / 2 : 0});
        jet::Creator::Table &copy = creator.addTable(entry.name, columns);
        const std::uint32_t count = table->rowCount();
        for (std::uint32_t i = 0; i < count; ++i) { // the other way round each time
            std::vector<jet::NewValue> values;
            for (int column = 0; column < static_cast<int>(columns.size()); ++column)
                values.push_back(valueOf(table->value(count - 1 - i, column)));
            copy.addRow(values);
        }
    }
    creator.write(m_name + u".compact.mdb"_s);
    QFile copy(m_name + u".compact.mdb"_s);
    require(copy.open(QIODevice::ReadOnly), "the compacted file cannot be read");
    atLast();
    require(std::rename(qPrintable(copy.fileName()), qPrintable(m_name)) == 0, "it cannot take its place");
    const QByteArray bytes = copy.readAll();
    open();
    m_expected.assign(bytes.begin(), bytes.end());
    ++done["compacted"];
}

void ForeignWriter::holdPage(std::chrono::milliseconds time)
{
    const jet::PageLock lock(*m_locks, m_pages[below(m_pages.size())]);
    const bool whole = m_file.lock(0, m_file.size()) == storage::File::Lock::Taken;
    std::this_thread::sleep_for(time);
    if (whole)
        m_file.unlock(0, m_file.size());
    ++done["pages held"];
}

ForeignWriter::Verdict ForeignWriter::verdict() const
{
    Verdict verdict;
    const storage::File file = storage::File::open(m_name, storage::File::Mode::Read, nullptr);
    Bytes now(m_expected.size());
    require(file.isOpen() && file.size() == static_cast<qint64>(now.size()) && file.readAt(0, now),
            "the file has another size");
    for (std::size_t i = 0; i < now.size(); ++i)
        now[i] ^= m_expected[i];
    const auto table = jet::Database::open(m_name)->table(u"Daten"_s);
    const int mark = table->columnOf(u"Markierung");
    for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
        const jet::RowPlace &place = table->place(row);
        const jet::Record record(table->layout(), table->record(row));
        now[place.recordPage * PageSize + place.recordStart + record.maskByte(m_markNumber)] &=
            static_cast<std::uint8_t>(~(1U << m_markNumber % 8));
        verdict.marked += table->boolean(row, mark) ? 1 : 0;
    }
    verdict.persons = static_cast<int>(table->rowCount());
    require(verdict.persons == static_cast<int>(m_persons.size()), "persons are missing or too many");
    for (const std::uint8_t byte : now)
        verdict.foreignBits += std::popcount(byte);
    return verdict;
}
