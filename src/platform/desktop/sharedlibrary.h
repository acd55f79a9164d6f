// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <QLibrary>
#include <QString>

#ifdef Q_OS_WIN
#define KALVENOR_ENTRY __stdcall
#else
#define KALVENOR_ENTRY
#endif

namespace kalvenor::desktop {

/// A library loaded by its file (native path) and unloaded with the object.
class SharedLibrary {
public:
    /// An entry point without arguments; below 0 is a failure (as an HRESULT).
    using EntryPoint = std::int32_t(KALVENOR_ENTRY *)();

    explicit SharedLibrary(const QString &nativeFile) : m_library(nativeFile) { m_library.load(); }
    ~SharedLibrary() { m_library.unload(); }
    SharedLibrary(const SharedLibrary &) = delete;
    SharedLibrary &operator=(const SharedLibrary &) = delete;

    bool isLoaded() const { return m_library.isLoaded(); }
    QString errorText() const { return m_library.errorString(); }
    /// Null where there is none of that name, or no library.
    EntryPoint entryPoint(const char *name);

private:
    QLibrary m_library;
};

/// Runs an entry point on a thread of its own, waits for its end and gives its exit code. Where no thread can be begun
/// or the entry point throws it is a failure, below 0.
std::int32_t runOnThread(SharedLibrary::EntryPoint entryPoint);

} // namespace kalvenor::desktop
