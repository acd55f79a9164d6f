// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a selection template: it is refused with an Error, or written and read the same again.
#include "memorystorage.h"
#include "platform/basic/error.h"
#include "selection/templates/vorlage.h"
#include <cstdlib>

using namespace kalvenor;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static MemoryStorage storage;
    static const basic::NativePath File(QStringLiteral("/nowhere/fuzzed.kvl"));
    storage.fill(File, data, size);
    selection::Vorlage vorlage;
    try {
        vorlage = selection::readVorlage(File);
    } catch (const basic::Error &) {
        return 0;
    }
    selection::writeVorlage(File, vorlage);
    vorlage.lastIsOpen = false;
    if (selection::readVorlage(File) != vorlage)
        std::abort();
    return 0;
}
