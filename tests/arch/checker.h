// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <QString>
#include <QStringList>
#include <QStringView>

// The rules of the source tree as functions of a file's path (from the top of the tree) and its text.
namespace kalvenor::arch {

/// Each room with the rooms (itself too) whose headers it may include.
using RoomTable = std::map<QString, QStringList>;

/// Reads rooms.txt. Throws std::runtime_error for a line that is none or names a room that does not stand above it.
RoomTable readRoomTable(QStringView text);

/// One line "path:line: what is wrong" for each violation; empty where all is well. `hasHeader`: a header of the same
/// name lies beside this source, which must include it before all else (that proves the header self-contained).
QStringList violations(const RoomTable &rooms, const QString &path, QStringView text, bool hasHeader = false);

} // namespace kalvenor::arch
