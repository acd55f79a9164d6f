// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <span>

namespace kalvenor::demo {

struct EventKind {
    int number;
    const char16_t *symbol; ///< for texts
    const char16_t *deutsch;
    const char16_t *english;
    const char16_t *symbolEnglish;
    /// 16 × 16 pixels: for each colour its letter ("#" black, "r" red, "b" blue, "g" gold) and the bits of its pixels
    /// in hexadecimal, four digits a row.
    const char *picture;
};

std::span<const EventKind> eventKinds();

/// The kind's picture as a bitmap file (BMP) of 16 × 16 pixels, 24 bit.
QByteArray iconBitmap(const EventKind &kind);

} // namespace kalvenor::demo
