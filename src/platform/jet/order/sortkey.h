// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QByteArray>
#include <QStringView>
#include <vector>

// Jet's "General" sort order (Jet 4): texts compare by keys; case and trailing blanks play no role.
namespace kalvenor::jet {

/// What a character without a code adds to a key.
enum class Unlisted {
    Kept,    ///< its UTF-16 unit behind 7E, so that e.g. Greek names stay apart (for lists and comparisons)
    Refused, ///< Error(InvalidProcedureCall) naming the character (for an index that is written)
};

/// Appends the key of the text (without the leading 7F of an index entry).
void appendGeneralKey(QStringView text, std::vector<std::uint8_t> &key, Unlisted unlisted = Unlisted::Kept);
QByteArray generalKey(QStringView text, Unlisted unlisted = Unlisted::Kept);

/// Negative, 0 or positive, as the keys compare. No allocation for texts of usual length.
int compareGeneral(QStringView left, QStringView right);

/// One character's identity in LIKE: equal for characters that differ in case only.
std::uint32_t likeIdentity(char16_t unit);
/// One character's place in the order, for the ranges of LIKE lists.
std::uint32_t generalRank(char16_t unit);

} // namespace kalvenor::jet
