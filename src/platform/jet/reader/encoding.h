// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

// The two uses the format makes of RC4: the mask over the header page, and encoded pages. Being an XOR stream, the same
// call encodes and decodes, and one changed plain byte is the same change of one stored byte.
namespace kalvenor::jet {

/// XORs the masked range of the header page (126 bytes in Jet 3, 128 in Jet 4, from 0x18).
void maskHeader(std::span<std::uint8_t> headerPage, bool jet4);

/// XORs a whole page, number >= 1, of a file whose key is not 0.
void encodePage(std::span<std::uint8_t> page, std::uint32_t encodingKey, std::uint32_t pageNumber);

} // namespace kalvenor::jet
