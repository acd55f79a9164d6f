// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// statistics PROGRAM-FOLDER: opens the host and writes the age list and the chart's figures of the marked persons, as
// the commands `ages` and `chart` do, but both in one process.
#include "app/commands/chartcommand.h"
#include "app/start/startedprogram.h"
#include "statistics/ages/altersliste.h"
#include <cstdio>

using namespace kalvenor;

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: statistics PROGRAM-FOLDER\n", stderr);
        return 2;
    }
    try {
        app::StartedProgram started(basic::windowsPath(QString::fromLocal8Bit(argv[1])));
        if (!started.ready)
            return app::Failed;
        data::Datenbankmodul &databases = started.program.databases;
        statistics::Altersliste ages;
        statistics::alterslistenausgabe(databases, {1, 1, 1, 1}, ages);
        app::ListOutput output(app::Format::Text, "line");
        for (const statistics::Alterszeile &line : ages)
            output.add(line.Counter, line.text());
        output.finish();
        desktop::writeOutput(app::chartOutput(statistics::grafikermitteln(databases, {}), app::Format::Text));
        desktop::flushOutput();
        return started.done();
    } catch (const basic::Error &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return app::Failed;
    }
}
