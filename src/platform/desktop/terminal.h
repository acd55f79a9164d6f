// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include <QByteArrayView>
#include <QElapsedTimer>
#include <QString>

// Standard output, standard error and the interrupt key. All texts are UTF-8.
namespace kalvenor::desktop {

/// One line on stderr, "kalvenor: " before it.
void writeError(const QString &line);

/// Writes to stdout. Throws Error(WriteFailed) where the text cannot be written (disk full, pipe closed) and
/// Error(Cancelled) once the interrupt key was pressed.
void writeOutput(QByteArrayView utf8);
/// Everything written so far is handed over. Throws like writeOutput.
void flushOutput();

/// From here on the interrupt key ends long work at its next safe point; pressed again it ends the process.
void catchInterrupt();

/// Shows how far long work is, on stderr and only where that is a terminal, a few times a second, and takes its line
/// away at the end.
class TerminalProgress {
public:
    /// `line` has one place for the percentage, such as %2.
    explicit TerminalProgress(QString line);
    ~TerminalProgress();
    TerminalProgress(const TerminalProgress &) = delete;
    TerminalProgress &operator=(const TerminalProgress &) = delete;
    /// To be handed to the work; asks for an end once the interrupt key was pressed. Valid as long as this object.
    basic::Progress progress();

private:
    bool show(qint64 done, qint64 total);
    QString m_line;
    QElapsedTimer m_clock;
    qint64 m_lastShown = 0;
    bool m_terminal;
    bool m_shown = false;
};

} // namespace kalvenor::desktop
