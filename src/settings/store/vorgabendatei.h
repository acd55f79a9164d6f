// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "settings/store/druckvorgaben.h"
#include <array>

// The print settings in the program's own settings file.
namespace kalvenor::settings {

/// Loads all settings: fonts, switches and spacing into `vorgaben`, margins and orientation into `page` (that of the
/// print control, whose margins are the defaults). A missing key gives its default, a text without a number 0; a
/// number that its type cannot hold gives the default. At the first run (`Spalten`/1 is missing or 1) column widths
/// and font factor are written. Never fails.
void initladen(const host::Host &host, Druckvorgaben &vorgaben, print::PageSetup &page);

/// Saves all of it, in the order of initladen; a key that already reads so is left as it is. Column widths and font
/// factor are not written. False where it could not be written: nothing was then.
bool initspeichern(const host::Host &host, const Druckvorgaben &vorgaben, const print::PageSetup &page);

/// Measures of the report that other keys of the same file hold. As made, the defaults.
struct ReportMeasures {
    /// Widths of the age list's columns (section `Spalten`, keys "1", "2", "4": age, sex, name). 0, also for a text
    /// without a number, is an equal share; a width below 0 or above 31680 is the default.
    std::array<print::Twips, 3> spaltenbreiten = {400, 1000, 3000};
    /// Scale of the chart's fonts (`Grafik`/`Fontfaktor`), above 0 to 20; others are the default.
    double fontfaktor = 3;
    /// Height of the printed chart (`Grafik`/`Bildgroesse`) in percent of the height that its shape on the screen gives
    /// it at the printable width, but at most three fifths of the page: 50 to 600, others are the default. The width
    /// does not change; the page limits the height.
    int bildprozent = 100;

    bool operator==(const ReportMeasures &) const = default;

    /// Never fails.
    static ReportMeasures read(const host::Host &host);
    /// Writes those that the file does not give already. False where that failed: none was then.
    bool write(const host::Host &host) const;
};

} // namespace kalvenor::settings
