// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <QString>
#include <span>

// Stored text to QString. Public source for the compressed form: the documentation of Jackcess.
namespace kalvenor::jet {

/// The characters of a single-byte code page.
using ByteCharacters = std::array<char16_t, 256>;
ByteCharacters charactersOf(int codePage);

/// Jet 3: one byte a character. The buffer's room is used again.
void decodeText3(std::span<const std::uint8_t> bytes, const ByteCharacters &characters, QString &into);

/// Jet 4: the text begins with the mark of the compressed form. Until its first zero byte each byte behind the mark is
/// a character, U+0001 to U+00FF.
inline bool isCompressed4(std::span<const std::uint8_t> bytes)
{
    return bytes.size() >= 2 && bytes[0] == 0xff && bytes[1] == 0xfe;
}

/// Jet 4: UTF-16, or compressed where it begins with ff fe. What is no character (unpaired surrogates, U+FFFE, U+FFFF)
/// becomes U+FFFD, an incomplete last unit is dropped. The buffer's room is used again.
void decodeText4(std::span<const std::uint8_t> bytes, QString &into);

} // namespace kalvenor::jet
