// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "platform/basic/error.h"

namespace kalvenor::app {

/// What hinders the opening of the databases, in the user's language: which file, what is wrong with it and what to do.
/// `familienpfad` is the family database that was to be opened, in Windows notation. Where there are no plain words
/// for it, the error's own.
QString databaseFault(data::Session &session, const basic::Error &error, const basic::WindowsPath &familienpfad);

} // namespace kalvenor::app
