// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/sprache.h"
#include "platform/basic/progress.h"
#include "platform/print/printdocument.h"
#include "statistics/altersliste.h"
#include <QString>

namespace kalvenor::report {

/// The plain report: title, then the age list as it stands, with the title and the page number above each page.
PrintDocument composeAgeListReport(const QString &title, const statistics::Altersliste &list,
                                   language::Sprachmodul &language);

/// Composes it, writes it as PDF (native path) and returns the number of pages. Throws the print control's Error.
int writeAgeListReport(const QString &title, const statistics::Altersliste &list, language::Sprachmodul &language,
                       const QString &pdfFile, const Progress &progress = {});

} // namespace kalvenor::report
