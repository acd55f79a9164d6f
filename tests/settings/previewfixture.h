// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "demo/texts.h"
#include "language/texts.h"
#include "platform/print/printcontrol.h"
#include <utility>

namespace kalvenor::test {

inline std::vector<TextRow> shippedTexts()
{
    std::vector<TextRow> rows;
    for (const auto &texts : {demo::hostTexts(), demo::windowTexts(), demo::printTexts(), demo::messageTexts()}) {
        for (const demo::LanguageText &text : texts)
            rows.push_back({text.id, QString::fromUtf16(text.deutsch), QString::fromUtf16(text.english)});
    }
    return rows;
}

/// Each page has a heading "Blatt n" and five lines, one of them "Zeile n Müller".
inline PrintDocument pagesOf(int pages)
{
    PrintDocument document;
    document.title = QStringLiteral("Alter der Familie");
    const StyleId heading = document.addStyle({.pointSize = 18, .bold = true});
    document.footer.text = QStringLiteral("||%d");
    for (int page = 1; page <= pages; ++page) {
        if (page > 1)
            document.add(PageBreak());
        document.add(Paragraph{.text = QStringLiteral("Blatt %1").arg(page), .style = heading});
        document.add(Paragraph{.text = QStringLiteral("Zeile %1 Müller\nHans\nEva\nIda").arg(page)});
    }
    return document;
}

} // namespace kalvenor::test
