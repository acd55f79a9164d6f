// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include <QString>

class QWidget;

// Which file a report is to be saved as.
namespace kalvenor::settings {

enum class SavedAs { Nothing, Rtf, Pdf, Html };

/// Names of kinds and their patterns in turn, joined by bars: "RTF-Texte (*.rtf)|*.rtf|…".
QString saveFilter();
/// "*.pdf", "*.HTML" or "*.RTF", whichever the filter holds first in this order, else empty.
QString defaultExtension(const QString &filter);
/// The same filter as a file dialog of the desktop takes it.
QString dialogFilters(const QString &filter);

/// The last four characters in capitals.
QString lastFour(const QString &fileName);
/// What a file of this name is saved as. A name ending in .htm passes the filter and is nothing.
SavedAs savedAs(const QString &fileName);

/// Where reports are saved: the host's setting, else its folder of printouts.
basic::WindowsPath printsFolder(const host::Host &host);

/// Asks until the ending of the name occurs in the filter. The native path, empty where the user gives up.
/// `parent` shows the hourglass afterwards.
QString askForSaveFile(QWidget &parent, const host::Host &host, const QString &title);

} // namespace kalvenor::settings
