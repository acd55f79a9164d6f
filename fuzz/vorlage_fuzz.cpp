// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a selection template: it is refused with an Error, or written and read the same again.
#include "platform/basic/error.h"
#include "selection/templates/vorlage.h"
#include "workfile.h"

using namespace kalvenor;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const WorkFile Work;
    Work.fill(data, size);
    selection::Vorlage vorlage;
    try {
        vorlage = selection::readVorlage(Work.path());
    } catch (const basic::Error &) {
        return 0;
    }
    selection::writeVorlage(Work.path(), vorlage);
    if (selection::readVorlage(Work.path()) != vorlage)
        std::abort();
    return 0;
}
