// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a profile file: a value that is written is read, another key keeps its value, and what was deleted is
// gone.
#include "platform/profile/profile.h"
#include "workfile.h"

using namespace kalvenor::profile;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const WorkFile Work;
    Work.fill(data, size);
    const QString file = Work.path();
    const QByteArray other = getPrivateProfileString("Grafik", "Legende", "none", 256, file);
    if (!writePrivateProfileString("Grafik", "Grafiktyp", "7", file) ||
        getPrivateProfileString("Grafik", "Grafiktyp", "none", 256, file) != "7" ||
        getPrivateProfileString("Grafik", "Legende", "none", 256, file) != other)
        std::abort();
    writePrivateProfileString("Grafik", {}, {}, file);
    const QByteArray rest = Work.bytes();
    if (!writePrivateProfileString("Nirgends", "x", {}, file) || Work.bytes() != rest)
        std::abort();
    return 0;
}
