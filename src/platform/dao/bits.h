// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <vector>

namespace kalvenor::dao {

/// One bit for each row of a table.
class Bits {
public:
    Bits() = default;
    explicit Bits(quint32 count) : m_words((static_cast<std::size_t>(count) + 63) / 64) {}

    bool test(quint32 bit) const
    {
        Q_ASSERT(bit >> 6 < m_words.size());
        return ((m_words[bit >> 6] >> (bit & 63)) & 1) != 0;
    }
    void set(quint32 bit, bool on)
    {
        Q_ASSERT(bit >> 6 < m_words.size());
        const quint64 mask = quint64(1) << (bit & 63);
        m_words[bit >> 6] = on ? m_words[bit >> 6] | mask : m_words[bit >> 6] & ~mask;
    }

private:
    std::vector<quint64> m_words;
};

} // namespace kalvenor::dao
