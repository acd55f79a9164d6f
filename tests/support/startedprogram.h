// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/program.h"
#include "support/fakedesktop.h"
#include "support/fixtures.h"
#include <QTemporaryDir>
#include <vector>

namespace kalvenor::test {

/// A host installation of its own in a temporary folder.
struct Installation {
    explicit Installation(const std::vector<TestPerson> &persons = {}) { writeHost(folder.path(), persons); }
    QString hostFolder() const { return folder.path() + QStringLiteral("/QV"); }
    QString programFolder() const { return windowsPath(hostFolder() + QStringLiteral("/Kalvenor")); }
    QString settings() const { return windowsPath(hostFolder() + QStringLiteral("/programm.ini")); }
    QTemporaryDir folder;
};

/// The same, started.
struct StartedProgram : Installation {
    explicit StartedProgram(const std::vector<TestPerson> &persons = {}) : Installation(persons) { program.Main(); }
    FakeDesktop desktop;
    app::Program program{programFolder(), desktop};
};

} // namespace kalvenor::test
