// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/start/program.h"
#include "support/fakedesktop.h"
#include "support/fixtures.h"
#include <QTemporaryDir>
#include <vector>

namespace kalvenor::test {

using namespace Qt::StringLiterals;

/// A host installation of its own in a temporary folder.
struct Installation {
    explicit Installation(const std::vector<TestPerson> &persons = {}) { writeHost(folder.path(), persons); }
    QString hostFolder() const { return folder.path() + u"/QV"_s; }
    QString family() const { return hostFolder() + u"/Familie/familie.mdb"_s; }
    basic::WindowsPath programFolder() const { return basic::windowsPath(hostFolder() + u"/Kalvenor"_s); }
    basic::WindowsPath settings() const { return basic::windowsPath(hostFolder() + u"/programm.ini"_s); }
    QTemporaryDir folder;
};

/// The same, started.
struct StartedProgram : Installation {
    explicit StartedProgram(const std::vector<TestPerson> &persons = {}) : Installation(persons) { program.Main(); }
    FakeDesktop desktop;
    app::Program program{programFolder(), desktop};
};

/// Counters that the SQL text gives when another program asks for them.
inline std::vector<qint32> countersIn(const QString &nativeFile, const QString &query)
{
    dao::Engine engine;
    const auto persons = engine.openDatabase(nativeFile)->openQuery(query);
    const int field = persons->fieldIndex(u"Counter"_s);
    std::vector<qint32> counters;
    for (; !persons->eof(); persons->moveNext())
        counters.push_back(persons->integer(field).value_or(0));
    return counters;
}

} // namespace kalvenor::test
