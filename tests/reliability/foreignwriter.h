// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/marks/pagelock.h"
#include "platform/jet/reader/database.h"
#include <chrono>
#include <functional>
#include <map>
#include <random>
#include <string>

/// Another program at a family database, as the host's engine would be: it changes rows in place, adds, deletes and
/// moves them, page by page. It knows of every bit what the file must hold but for marks. Jet 4, pages not encoded.
class ForeignWriter {
public:
    /// A careful one locks each page and writes it whole, as it read it under the lock; a careless one locks nothing
    /// and writes the bytes it changes.
    ForeignWriter(const QString &file, bool careful);

    // One change each; nothing where this one cannot be made now.
    void changeValue();     ///< a number of a person
    void changeNeighbour(); ///< a bit in the byte that holds the mark
    void addPerson();
    void deletePerson();
    void movePerson(); ///< to another page, with an overflow pointer in its place
    /// The database written anew by the creator, with other places for everything, takes the file's place.
    /// `atLast` is asked right before.
    void compact(const std::function<void()> &atLast);
    /// Holds a page's lock, and the whole file as locks without offset do, so long.
    void holdPage(std::chrono::milliseconds time);

    std::map<std::string, int> done; ///< changes by their kind

    struct Verdict {
        int foreignBits = 0; ///< that are not as this writer left them
        int persons = 0;
        int marked = 0;
    };
    /// What the file holds now. Marks may be as they like.
    Verdict verdict() const;

private:
    static constexpr std::size_t PageSize = 4096;
    using Bytes = std::vector<std::uint8_t>;

    struct Person {
        std::uint32_t page = 0;
        std::uint8_t slot = 0;
        std::uint32_t movedTo = 0; ///< page × 256 + slot; 0: it is at home
    };

    void open();
    void makeRoom();
    std::size_t below(std::size_t limit) { return m_random() % limit; }
    Bytes readPage(std::uint32_t page) const;
    /// Locks, reads, has it changed and writes.
    template <class Change>
    void onPage(std::uint32_t page, Change change);
    Person *someoneAtHome();
    /// The mark of a row that is no more there stays for ever as it is in `page`.
    void freezeMark(const Person &person, const Bytes &page);
    std::size_t maskByte(const Bytes &page, std::uint8_t slot) const;
    /// A page with room for one more record; 0 where there is none.
    std::uint32_t pageWithRoom(std::size_t length, std::uint32_t except);
    static std::uint8_t append(Bytes &page, const Bytes &record, std::uint16_t flags);
    static void dropLast(Bytes &page);
    static Bytes recordOf(const Bytes &page, std::uint8_t slot);

    kalvenor::basic::NativePath m_name;
    bool m_careful;
    kalvenor::storage::File m_file;
    std::unique_ptr<kalvenor::jet::PageLocks> m_locks;
    Bytes m_expected; ///< the whole file, marks as they were when it was opened or copied
    std::vector<std::uint32_t> m_pages;
    std::vector<Person> m_persons;
    std::uint32_t m_definition = 0;
    std::uint16_t m_markNumber = 0;
    std::size_t m_keyAt = 0;      ///< in a record
    std::size_t m_numberAt = 0;   ///< of a number that anybody may change
    std::uint8_t m_neighbour = 0; ///< the bit of a column beside the mark, as a mask
    std::int32_t m_nextKey = 0;
    std::minstd_rand m_random{12};
};
