// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/encoding.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace kalvenor::jet {

namespace {

void xorStream(std::span<std::uint8_t> bytes, const std::array<std::uint8_t, 4> &key)
{
    std::array<std::uint8_t, 256> state; // NOLINT(*-member-init): iota fills it
    std::iota(state.begin(), state.end(), std::uint8_t{0});
    std::uint8_t j = 0;
    for (unsigned i = 0; i < 256; ++i) {
        j = static_cast<std::uint8_t>(j + state[i] + key[i % 4]);
        std::swap(state[i], state[j]);
    }
    std::uint8_t i = 0;
    j = 0;
    for (std::uint8_t &byte : bytes) {
        i = static_cast<std::uint8_t>(i + 1);
        const std::uint8_t a = state[i];
        j = static_cast<std::uint8_t>(j + a);
        const std::uint8_t b = state[j];
        state[i] = b;
        state[j] = a;
        byte ^= state[static_cast<std::uint8_t>(a + b)];
    }
}

} // namespace

void maskHeader(std::span<std::uint8_t> headerPage, bool jet4)
{
    constexpr std::size_t Begin = 0x18;
    if (headerPage.size() <= Begin)
        return;
    const std::size_t length = std::min<std::size_t>(jet4 ? 128 : 126, headerPage.size() - Begin);
    xorStream(headerPage.subspan(Begin, length), {0xc7, 0xda, 0x39, 0x6b});
}

void encodePage(std::span<std::uint8_t> page, std::uint32_t encodingKey, std::uint32_t pageNumber)
{
    const std::uint32_t key = encodingKey ^ pageNumber;
    xorStream(page, {static_cast<std::uint8_t>(key), static_cast<std::uint8_t>(key >> 8),
                     static_cast<std::uint8_t>(key >> 16), static_cast<std::uint8_t>(key >> 24)});
}

} // namespace kalvenor::jet
