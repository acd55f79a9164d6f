// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/terminal.h"

#include "platform/basic/error.h"
#include <algorithm>
#include <csignal>
#include <cstdio>
#include <utility>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace kalvenor::desktop {

namespace {

constexpr qint64 FirstShownAfterMs = 400;
constexpr qint64 ShownEveryMs = 150;

volatile std::sig_atomic_t interrupted = 0;

extern "C" void onInterrupt(int)
{
    interrupted = 1;
    std::signal(SIGINT, SIG_DFL); // who presses it again does not want to wait for a safe point
}

bool isTerminal(FILE *stream)
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

[[noreturn]] void throwOutputFailed()
{
    throw basic::Error(basic::Fault::OutputIncomplete);
}

} // namespace

void writeError(const QString &line)
{
    const QByteArray utf8 = "kalvenor: " + line.toUtf8() + '\n';
    std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stderr);
    std::fflush(stderr);
}

void writeOutput(QByteArrayView utf8)
{
    if (interrupted != 0)
        throw basic::Error(basic::Fault::StoppedIncomplete);
    const auto size = static_cast<std::size_t>(utf8.size());
    if (std::fwrite(utf8.data(), 1, size, stdout) != size)
        throwOutputFailed();
}

void flushOutput()
{
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
        throwOutputFailed();
}

void catchInterrupt()
{
    std::signal(SIGINT, onInterrupt);
#ifndef Q_OS_WIN
    // A reader that goes away (`kalvenor list | head`) is seen as a failed write instead.
    std::signal(SIGPIPE, SIG_IGN);
#endif
}

TerminalProgress::TerminalProgress(QString line) : m_line(std::move(line)), m_terminal(isTerminal(stderr))
{
    m_clock.start();
}

TerminalProgress::~TerminalProgress()
{
    if (m_shown)
        std::fputs("\r\033[K", stderr);
}

basic::Progress TerminalProgress::progress()
{
    return [this](qint64 done, qint64 total) {
        return show(done, total);
    };
}

bool TerminalProgress::show(qint64 done, qint64 total)
{
    const qint64 now = m_clock.elapsed();
    if (m_terminal && now > FirstShownAfterMs && now - m_lastShown > ShownEveryMs) {
        m_lastShown = now;
        m_shown = true;
        const qint64 percent = total > 0 ? std::min<qint64>(100, done * 100 / total) : 0;
        const QByteArray line = "\r\033[K" + m_line.arg(percent).toUtf8();
        std::fputs(line.constData(), stderr);
        std::fflush(stderr);
    }
    return interrupted == 0;
}

} // namespace kalvenor::desktop
