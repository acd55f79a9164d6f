// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/record.h"

namespace kalvenor::jet {

std::optional<Record::Offsets3> Record::offsets3() const
{
    if (!m_layout.hasVariable || m_mask < 2)
        return std::nullopt;
    Offsets3 result;
    result.count = m_bytes[m_mask - 1];
    const std::size_t stored = (m_bytes.size() - 1) / 256;
    if (m_mask < head() + stored + 2 + result.count)
        return std::nullopt;
    result.jumpTop = m_mask - 2;
    result.entry0 = m_mask - stored - 2;
    // The jump table is sized by the whole record, so that its last value can be one that no offset reaches.
    const bool superfluous = stored > 0 && (result.entry0 - result.count) / 256 < stored;
    result.jumps = superfluous ? stored - 1 : stored;
    return result;
}

std::size_t Record::offset3(const Offsets3 &offsets, std::size_t entry) const
{
    std::size_t passed = 0;
    while (passed < offsets.jumps && m_bytes[offsets.jumpTop - passed] <= entry)
        ++passed;
    return m_bytes[offsets.entry0 - entry] + 256 * passed;
}

std::optional<Record::Bytes> Record::variableField3(std::uint32_t index) const
{
    const std::optional<Offsets3> offsets = offsets3();
    if (!offsets || index >= offsets->count)
        return std::nullopt;
    return between(offset3(*offsets, index), offset3(*offsets, std::size_t{index} + 1));
}

bool Record::isSound() const
{
    if (m_count == 0 || m_count > m_layout.greatestColumns)
        return false;
    if (!m_layout.hasVariable)
        return true;
    if (m_layout.version == Version::Jet3) {
        const std::optional<Offsets3> offsets = offsets3();
        if (!offsets)
            return false;
        std::size_t previous = head();
        for (std::size_t entry = 0; entry <= offsets->count; ++entry) {
            const std::size_t offset = offset3(*offsets, entry);
            if (offset < previous || offset > m_bytes.size())
                return false;
            previous = offset;
        }
        return true;
    }
    if (m_mask < head() + 4)
        return false;
    const std::size_t count = load16(&m_bytes[m_mask - 2]);
    if (m_mask < head() + 2 + 2 * (count + 1))
        return false;
    const std::uint8_t *entry = &m_bytes[m_mask - 4];
    std::size_t previous = head();
    for (std::size_t i = 0; i <= count; ++i, entry -= 2) {
        const std::size_t offset = load16(entry);
        if (offset < previous)
            return false;
        previous = offset;
    }
    return previous <= m_bytes.size();
}

} // namespace kalvenor::jet
