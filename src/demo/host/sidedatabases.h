// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The host's databases beside the family database. `file` is a native path.
namespace kalvenor::demo {

void writeEventDatabase(const QString &file);
/// One that the program opens and does not read: Geschichte.mdb, namen.mdb or orte.mdb in the (native) folder.
void writeUnreadDatabase(const QString &folder, const QString &fileName);
void writeLanguageDatabase(const QString &file);

} // namespace kalvenor::demo
