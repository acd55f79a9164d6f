// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// settingswriter FILE SECTION COUNT: writes the keys 1 to COUNT of the section, one call each.
// settingswriter FILE SECTION 0: writes the keys a, b and c, the same number for all in one call, for ever.
#include "platform/profile/profile.h"
#include <cstdio>

int main(int argc, char **argv)
{
    using namespace kalvenor::profile;
    if (argc != 4)
        return 2;
    const QString file = QString::fromLocal8Bit(argv[1]);
    const QByteArray section = argv[2];
    const int count = QByteArray(argv[3]).toInt();
    for (int i = 1; i <= count; ++i) {
        const QByteArray number = QByteArray::number(i);
        if (!writePrivateProfileString(section, number, number, file)) {
            std::fprintf(stderr, "key %d was not written\n", i);
            return 1;
        }
    }
    for (int i = 1; count == 0; ++i) {
        const QByteArray number = QByteArray::number(i);
        const ProfileValue values[] = {{section, "a", number}, {section, "b", number}, {section, "c", number}};
        if (!writePrivateProfileStrings(values, file))
            return 1;
    }
    return 0;
}
