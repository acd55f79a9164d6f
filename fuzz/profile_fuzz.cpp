// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a profile file: a value that is written is read, another key keeps its value, and what was deleted is
// gone.
#include "memorystorage.h"
#include "platform/profile/profile.h"
#include <cstdlib>
#include <QTemporaryDir>

using namespace kalvenor::profile;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static MemoryStorage storage;
    static const QTemporaryDir Folder; // the lock of the writer lies there
    static const QString File = Folder.filePath(QStringLiteral("fuzzed.ini"));
    storage.fill(File, data, size);
    const QByteArray other = getPrivateProfileString("Grafik", "Legende", "none", 256, File);
    if (!writePrivateProfileString("Grafik", "Grafiktyp", "7", File) ||
        getPrivateProfileString("Grafik", "Grafiktyp", "none", 256, File) != "7" ||
        getPrivateProfileString("Grafik", "Legende", "none", 256, File) != other)
        std::abort();
    writePrivateProfileString("Grafik", {}, {}, File);
    const MemoryStorage::Bytes rest = storage.bytes(File);
    if (!writePrivateProfileString("Nirgends", "x", {}, File) || storage.bytes(File) != rest)
        std::abort();
    return 0;
}
