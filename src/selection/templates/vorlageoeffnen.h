// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "selection/marking/markhistory.h"
#include "selection/templates/vorlage.h"
#include <functional>

namespace kalvenor::selection {

struct OpenedVorlage {
    Vorlage vorlage;
    qsizetype found = 0;            ///< persons marked now
    std::vector<qint32> missing;    ///< persons that the database does not hold
    std::vector<dao::LeftRow> left; ///< persons whose mark could not be changed
    MarkStep changes;               ///< for undo, where the database stayed the same
    bool otherDatabase = false;     ///< another one is open now; steps before this one belong to the former
};

/// Asked where the template's database does not exist: true goes on with the open one, false gives up.
using UseOpenDatabase = std::function<bool(const basic::WindowsPath &familienpfad)>;

/// Opens a template; Everything is read, checked and looked up before the first
/// mark changes; progress can cancel until then. Where anything fails, the open database and the marks are as before,
/// or the error says what is not. Throws Error: as readVorlage and the engine, FileNotFound for a missing database
/// where nobody is asked, Cancelled.
OpenedVorlage vorlageoeffnen(data::Session &session, const basic::WindowsPath &File,
                             const basic::Progress &progress = {}, const UseOpenDatabase &useOpenDatabase = {});

} // namespace kalvenor::selection
