// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include <QString>

// Makes a host installation with an invented family database, so that the program can be tried, tested and measured
// without anybody's data.
namespace kalvenor::demo {

struct DemoOptions {
    QString folder;     ///< native path; made where it is missing
    int persons = 2000; ///< 1 to 2,000,000
    quint32 seed = 1;
};

/// Native paths.
struct DemoHost {
    QString hostFolder;
    QString programFolder;
    QString familyDatabase;
    int persons = 0;
};

/// Makes folder/QV (the host folder: settings, databases, printed pages) and folder/QV/Kalvenor (the program folder,
/// empty). The same options give the same bytes. Throws Error: Refused (folder/QV exists and is not empty, or its path
/// does not fit the settings file), InvalidProcedureCall (number of persons), WriteFailed, Cancelled; what was begun
/// in folder/QV is then removed again.
DemoHost makeDemoHost(const DemoOptions &options, const basic::Progress &progress = {});

} // namespace kalvenor::demo
