// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// secondwriter careful|careless KIND SECONDS FAMILY PROGRAM PROGRAMFOLDER
// Changes a family database as another program would, while PROGRAM marks and unmarks everybody in it, run after run;
// KIND is value, bits, persons, moves, compact, locked (pages are held for seconds) or kalvenor (a second PROGRAM
// instead). Prints one line: what was done, how the runs ended, and what was lost. Ends with 1 where a bit of the other
// writer was lost, or a run said "done" and was not.
#include "reliability/foreignwriter.h"
#include <array>
#include <cstdio>
#include <QElapsedTimer>
#include <QProcess>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Runs of the program, one behind the other: everybody marked, everybody unmarked, …
class Runs {
public:
    Runs(QString program, QString folder) : m_program(std::move(program)), m_folder(std::move(folder)) {}

    /// Starts the next where none is at work. True where one has just ended.
    bool keepGoing()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.waitForFinished(0);
            return m_process.state() == QProcess::NotRunning && take();
        }
        marks = !marks;
        m_process.start(m_program, {marks ? u"mark"_s : u"unmark"_s, u"--all"_s, u"--program"_s, m_folder});
        if (!m_process.waitForStarted())
            qFatal("%s cannot be started", qPrintable(m_program));
        return false;
    }
    /// What a run did that ended before now counts no more: it was not in what is to take the file's place.
    void passOver()
    {
        m_process.waitForFinished(0);
        if (m_process.state() == QProcess::NotRunning)
            keepGoing();
    }
    void finish()
    {
        if (m_process.state() != QProcess::NotRunning)
            m_process.waitForFinished(-1);
        take();
    }

    bool marks = false; ///< what the last one did
    bool succeeded = false;
    int done = 0;
    std::map<QString, int> refusals;

private:
    bool take()
    {
        succeeded = m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
        if (succeeded)
            ++done;
        else
            ++refusals[QString::fromUtf8(m_process.readAllStandardError()).section(u'\n', -2, -2).left(240)];
        return true;
    }

    QProcess m_process;
    QString m_program, m_folder;
};

void actOnce(ForeignWriter &writer, const QString &kind, int turn, Runs &runs)
{
    if (kind == u"value")
        writer.changeValue();
    else if (kind == u"bits")
        writer.changeNeighbour();
    else if (kind == u"persons" && turn % 2 == 0)
        writer.addPerson();
    else if (kind == u"persons")
        writer.deletePerson();
    else if (kind == u"moves")
        writer.movePerson();
    else if (kind == u"compact" && turn % 40 == 0)
        writer.compact([&runs] { runs.passOver(); });
    else if (kind == u"locked" && turn % 100 == 50)
        writer.holdPage(turn % 200 == 50 ? 2500ms : 500ms);
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<QString> words(argv, argv + argc);
    if (argc != 7)
        return 2;
    const QString kind = words[2];
    ForeignWriter writer(words[4], words[1] == u"careful");
    Runs runs(words[5], words[6]);
    Runs others(words[5], words[6]);
    std::minstd_rand random(1);
    int notAsTold = 0;
    QElapsedTimer timer;
    timer.start();
    for (int turn = 0; timer.elapsed() < words[3].toInt() * 1000; ++turn) {
        actOnce(writer, kind, turn, runs);
        if (kind == u"kalvenor")
            others.keepGoing();
        if (runs.keepGoing() && runs.succeeded && kind != u"kalvenor") {
            const auto now = writer.verdict();
            const bool asTold = now.marked == (runs.marks ? now.persons : 0);
            notAsTold += asTold || kind == u"persons" ? 0 : 1; // those added meanwhile have the mark of another one
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(random() % 40));
    }
    runs.finish();
    if (kind == u"kalvenor")
        others.finish();
    const auto after = writer.verdict();
    for (const auto &[what, count] : writer.done)
        std::printf("%d %s, ", count, what.c_str());
    int refused = 0;
    for (const auto &[message, count] : runs.refusals)
        refused += count;
    for (const auto &[message, count] : others.refusals)
        refused += count;
    std::printf("%d runs done, %d refused; foreign bits lost %d, runs not as told %d\n", runs.done + others.done,
                refused, after.foreignBits, notAsTold);
    for (const Runs *each : {&runs, &others}) {
        for (const auto &[message, count] : each->refusals)
            std::fprintf(stderr, "  %d x %s\n", count, qPrintable(message));
    }
    return after.foreignBits == 0 && notAsTold == 0 ? 0 : 1;
}
