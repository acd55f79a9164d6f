// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The host's databases beside the family database. `file` is a native path.
namespace kalvenor::demo {

void writeEventDatabase(const QString &file);
void writeHistoryDatabase(const QString &file);
void writeNameDatabase(const QString &file);
void writePlaceDatabase(const QString &file);
void writeLanguageDatabase(const QString &file);

} // namespace kalvenor::demo
