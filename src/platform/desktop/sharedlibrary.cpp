// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/sharedlibrary.h"

#include <system_error>
#include <thread>

namespace kalvenor::desktop {

namespace {

constexpr std::int32_t UnspecifiedFailure = -1;

}

SharedLibrary::EntryPoint SharedLibrary::entryPoint(const char *name)
{
    return isLoaded() ? reinterpret_cast<EntryPoint>(m_library.resolve(name)) : nullptr;
}

std::int32_t runOnThread(SharedLibrary::EntryPoint entryPoint)
{
    std::int32_t exitCode = UnspecifiedFailure;
    try {
        std::thread thread([entryPoint, &exitCode] {
            try {
                exitCode = entryPoint();
            } catch (...) { // of foreign code: the failure stays
            }
        });
        thread.join();
    } catch (const std::system_error &) { // no thread
    }
    return exitCode;
}

} // namespace kalvenor::desktop
