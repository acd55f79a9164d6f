// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts.h"
#include "platform/print/printcontrol.h"
#include <utility>

namespace kalvenor::test {

using namespace Qt::StringLiterals;

/// Each page has a heading "Blatt n" and five lines, one of them "Zeile n Müller".
inline print::PrintDocument pagesOf(int pages)
{
    print::PrintDocument document;
    document.title = u"Alter der Familie"_s;
    const print::StyleId heading = document.addStyle({.pointSize = 18, .bold = true});
    document.footer.text = u"||%d"_s;
    for (int page = 1; page <= pages; ++page) {
        if (page > 1)
            document.add(print::PageBreak());
        document.add(print::Paragraph{.text = u"Blatt %1"_s.arg(page), .style = heading});
        document.add(print::Paragraph{.text = u"Zeile %1 Müller\nHans\nEva\nIda"_s.arg(page)});
    }
    return document;
}

} // namespace kalvenor::test
