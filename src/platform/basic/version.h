// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace kalvenor::basic {

/// What the program says of itself, from the build.
struct VersionRecord {
    QString productName;
    int majorNumber = 0;
    int minorNumber = 0;
    int revision = 0;
    QString fileDescription; ///< German, as all design-time texts
    QString legalCopyright;
};

const VersionRecord &versionRecord();

} // namespace kalvenor::basic
