// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// How a database becomes another, slightly wrong one: bytes are changed where a reader believes them. Plain mutations
// of a file of many pages nearly always hit room that nobody reads.
#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/encoding.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace {

using namespace kalvenor::jet;

constexpr std::size_t SizeOfJet4 = 4096;
constexpr std::size_t SizeOfJet3 = 2048;

class Mutation {
public:
    Mutation(std::span<std::uint8_t> room, std::size_t size, unsigned seed)
        : m_room(room), m_size(size), m_random(seed), m_jet4(size > 0x14 && room[0x14] != 0),
          m_pageSize(m_jet4 ? SizeOfJet4 : SizeOfJet3)
    {
        if (pageCount() < 2)
            return;
        std::vector<std::uint8_t> header(room.begin(), room.begin() + static_cast<std::ptrdiff_t>(m_pageSize));
        maskHeader(header, m_jet4);
        m_key = load32(&header[0x3e]);
    }

    /// The new size.
    std::size_t run()
    {
        if (pageCount() < 2)
            return LLVMFuzzerMutate(m_room.data(), m_size, m_room.size());
        for (std::uint32_t i = 1 + below(4); i > 0; --i) {
            if (below(8) == 0)
                movePages();
            else
                changePage(pageThatIsRead());
        }
        return m_size;
    }

private:
    std::uint32_t pageCount() const { return static_cast<std::uint32_t>(m_size / m_pageSize); }
    std::uint32_t below(std::size_t limit)
    {
        return static_cast<std::uint32_t>(m_random() % std::max<std::size_t>(limit, 1));
    }
    std::span<std::uint8_t> page(std::uint32_t number) { return m_room.subspan(number * m_pageSize, m_pageSize); }

    /// Seldom one of an index, as no index is trusted.
    std::uint32_t pageThatIsRead()
    {
        std::uint32_t number = below(pageCount());
        for (int i = 0; i < 3 && (page(number)[0] == 3 || page(number)[0] == 4); ++i)
            number = below(pageCount());
        return number;
    }

    /// Swaps two pages, copies one over another or behind the end, or drops the last ones.
    void movePages()
    {
        const auto from = page(below(pageCount()));
        const auto to = page(below(pageCount()));
        switch (below(4)) {
        case 0:
            std::swap_ranges(from.begin(), from.end(), to.begin());
            break;
        case 1:
            if (from.data() != to.data())
                std::ranges::copy(from, to.begin());
            break;
        case 2:
            if (m_size + m_pageSize <= m_room.size()) {
                std::memmove(&m_room[m_size], from.data(), m_pageSize);
                m_size += m_pageSize;
            }
            break;
        default:
            m_size -= 1 + below(m_pageSize + 1);
        }
    }

    void changePage(std::uint32_t number)
    {
        const auto bytes = page(number);
        const bool decode = number > 0 && m_key != 0;
        if (decode)
            encodePage(bytes, m_key, number);
        switch (number == 0 ? 0 : bytes[0]) {
        case 0: // the header: version, code page, key, counters
            change(bytes, below(0x98), 1);
            break;
        case 1:
            changeData(bytes);
            break;
        case 2:
            changeDefinition(bytes);
            break;
        default: // index nodes and usage maps
            change(bytes, below(below(2) == 0 ? 64 : m_pageSize), 1);
        }
        if (decode)
            encodePage(bytes, m_key, number);
    }

    void changeData(std::span<std::uint8_t> bytes)
    {
        const std::size_t table = m_jet4 ? 14 : 10;
        const std::size_t slots = std::min<std::size_t>(load16(&bytes[table - 2]), (m_pageSize - table) / 2);
        if (slots == 0 || below(6) == 0) {
            change(bytes, below(table), 2); // type, owner, number of rows
            return;
        }
        const std::size_t index = below(slots);
        const std::size_t word = table + 2 * index;
        if (below(4) == 0) {
            change(bytes, word, 2);
            return;
        }
        if (below(8) == 0) {
            bytes[word + 1] ^= static_cast<std::uint8_t>(0x20U << below(3)); // unknown, moved, hidden
            return;
        }
        const std::size_t start = std::min<std::size_t>(load16(&bytes[word]) & 0x1fffU, m_pageSize - 1);
        std::size_t end = index == 0 ? m_pageSize : load16(&bytes[word - 2]) & 0x1fffU;
        end = std::clamp(end, start + 1, m_pageSize);
        const std::size_t length = end - start;
        const std::size_t part = std::min<std::size_t>(length, 16);
        switch (below(3)) {
        case 0: // number of columns, first fixed columns; the head of a map or of a part of a long value
            change(bytes, start + below(part), 2);
            break;
        case 1: // offsets of variable columns, their number, the null mask
            change(bytes, end - 1 - below(part), 1);
            break;
        default:
            change(bytes, start + below(length), 4);
        }
    }

    void changeDefinition(std::span<std::uint8_t> bytes)
    {
        const std::size_t head = m_jet4 ? 63 : 43;
        const std::size_t used = std::clamp<std::size_t>(load32(&bytes[8]), head + 1, m_pageSize);
        change(bytes, below(2) == 0 ? below(head) : below(used), 4);
    }

    /// Some bytes from here on become others.
    void change(std::span<std::uint8_t> bytes, std::size_t at, std::size_t atMost)
    {
        static constexpr std::array Telling = {0U,      1U,       2U,          0x7fU,      0x80U,   0xffU,
                                               0x100U,  0xfffU,   0x1000U,     0x1fffU,    0x7fffU, 0x8000U,
                                               0xffffU, 0x10000U, 0x7fffffffU, 0xffffffffU};
        at = std::min(at, bytes.size() - 1);
        const auto some = bytes.subspan(at, std::min<std::size_t>(1 + below(atMost), bytes.size() - at));
        std::uint32_t value = 0;
        std::memcpy(&value, some.data(), some.size());
        switch (below(6)) {
        case 0:
            some[below(some.size())] ^= static_cast<std::uint8_t>(1U << below(8));
            return;
        case 1:
            value = Telling[below(Telling.size())];
            break;
        case 2:
            value += below(2) == 0 ? 1U : ~0U;
            break;
        case 3: // a place, as page * 256 + row
            value = below(pageCount() + 1) << 8 | below(4);
            break;
        case 4: { // what stands elsewhere
            const auto other = page(below(pageCount()));
            std::memmove(some.data(), &other[below(m_pageSize - some.size() + 1)], some.size());
            return;
        }
        default: // what the fuzzer saw in comparisons
            LLVMFuzzerMutate(some.data(), some.size(), some.size());
            return;
        }
        std::memcpy(some.data(), &value, some.size());
    }

    std::span<std::uint8_t> m_room;
    std::size_t m_size;
    std::minstd_rand m_random;
    bool m_jet4;
    std::size_t m_pageSize;
    std::uint32_t m_key = 0; ///< of encoded pages; 0 for plain ones
};

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed)
{
    return Mutation({data, maxSize}, size, seed).run();
}
