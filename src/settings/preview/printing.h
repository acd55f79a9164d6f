// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/progress.h"
#include "platform/print/pagelayout.h"
#include <QPageRanges>
#include <QPrinter>
#include <vector>

namespace kalvenor::settings {

/// What a print dialog lets the user choose of the pages.
struct PrintChoice {
    QPageRanges ranges = {}; ///< pages from 1; empty: all
    int copies = 1;
    bool collated = true; ///< 1 2 3 1 2 3, else 1 1 2 2 3 3
    bool lastFirst = false;
};
/// Copies that the printer makes itself are left to it.
PrintChoice printChoice(const QPrinter &printer, int currentPage);

/// The pages in the order in which they come out, from 0. Pages of the ranges that do not exist are left out.
std::vector<int> pagesToPrint(int pageCount, const PrintChoice &choice);

/// Gives the printer the document's paper, so that its dialog begins with it.
void preparePrinter(QPrinter &printer, const print::PageLayout &layout, const QString &title);

/// Prints the pages in this order, made smaller where the paper is smaller than the document's. Steps are pages.
/// Throws Error(WriteFailed) where the printer or file does not take them, Error(Cancelled) where the watcher says so;
/// a file is removed then.
void printPages(const print::PageLayout &layout, QPrinter &printer, const std::vector<int> &pages,
                const basic::Progress &progress = {});

} // namespace kalvenor::settings
