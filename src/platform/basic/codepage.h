// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

// The single-byte code pages of Windows, 1250 to 1258. Tables from the Unicode Consortium's mappings
// (unicode.org/Public/MAPPINGS/VENDORS/MICSFT/WINDOWS); a byte they leave undefined maps to the same code point.
namespace kalvenor::basic {

bool isKnownCodePage(int codePage);
/// An unknown code page is read as 1252.
QString decodeCodePage(QByteArrayView bytes, int codePage);
/// Characters the code page lacks become "?".
QByteArray encodeCodePage(QStringView text, int codePage);

inline QString decodeAnsi(QByteArrayView bytes)
{
    return decodeCodePage(bytes, 1252);
}
inline QByteArray encodeAnsi(QStringView text)
{
    return encodeCodePage(text, 1252);
}

/// Paths in files of one byte a character: as text where Windows-1252 gives the path back, else the bytes of its UTF-8,
/// each taken for a character of Windows-1252. Every path comes back through pathFromStored().
QString storedPath(const QString &path);
/// The path of a text read from such a file: its bytes as UTF-8 where they are that, else the text itself.
QString pathFromStored(const QString &stored);

} // namespace kalvenor::basic
