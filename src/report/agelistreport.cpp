// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/agelistreport.h"

#include "platform/basic/text.h"
#include "platform/print/pagelayout.h"
#include "platform/print/pdfwriter.h"

namespace kalvenor::report {

namespace {

constexpr qint16 TextAgeListHeading = 1217;

// A line of the age list is the age text and the name behind it.
constexpr qsizetype AgeTextWidth = 7;

constexpr Twips AgeColumn = 700;
constexpr Twips GapColumn = 200;

} // namespace

PrintDocument composeAgeListReport(const QString &title, const statistics::Altersliste &list,
                                   language::Sprachmodul &language)
{
    PrintDocument document;
    document.title = title;
    const StyleId titleStyle = document.addStyle({.pointSize = 15, .bold = true});
    const StyleId headingStyle = document.addStyle({.pointSize = 12, .bold = true});
    const StyleId rowStyle = document.addStyle({.pointSize = 10});
    const StyleId headerStyle = document.addStyle({.pointSize = 8});
    // A bar would end the header's left part.
    document.header = {QString(title).replace(u'|', u'/') + QStringLiteral("||- %d -"), headerStyle};

    if (!title.isEmpty())
        document.add(Paragraph{.text = title, .style = titleStyle, .spaceAfter = 240, .keepWithNext = true});
    document.add(Paragraph{
        .text = language.text(TextAgeListHeading), .style = headingStyle, .spaceAfter = 160, .keepWithNext = true});
    document.add(TableStart{.columns = {{.alignment = Alignment::Right, .width = AgeColumn},
                                        {.width = GapColumn},
                                        {.alignment = Alignment::Left, .width = 0}},
                            .rowSpacing = 20});
    for (const statistics::Alterszeile &line : list) {
        document.add(TableRow{{{.text = trimBlanks(leftPart(line.text, AgeTextWidth)), .style = rowStyle},
                               {},
                               {.text = trimBlanks(midPart(line.text, AgeTextWidth + 1)), .style = rowStyle}}});
    }
    return document;
}

int writeAgeListReport(const QString &title, const statistics::Altersliste &list, language::Sprachmodul &language,
                       const QString &pdfFile, const Progress &progress)
{
    const PageLayout layout(composeAgeListReport(title, list, language), progress);
    writePdf(layout, title, pdfFile, progress);
    return static_cast<int>(layout.pages().size());
}

} // namespace kalvenor::report
