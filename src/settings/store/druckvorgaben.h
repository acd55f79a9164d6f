// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printdocument.h"
#include <array>
#include <QString>

// The print settings as texts and switches, and what they mean on the page. Lengths are twips.
namespace kalvenor::settings {

/// Elements of the report by their index in the settings. NeueSeite has a switch and no font; index 7 has neither.
enum Element {
    Titel = 1,
    TitelKriterien = 2,
    Kriterien = 3,
    TitelAltersliste = 4,
    Altersliste = 5,
    NeueSeite = 6,
    Header = 8,
    Footer = 9,
};

/// The elements that have a font, in the order of the settings file.
inline constexpr std::array<Element, 7> FontElements = {Titel,       TitelKriterien, Kriterien, TitelAltersliste,
                                                        Altersliste, Header,         Footer};

/// The font of one element, each text as the settings file holds it, in the order of the file.
struct FontTexts {
    QString Fontname = {};
    QString Fontsize = {};
    QString Fontbold = {};      ///< a truth text (textwahr), as the next three
    QString Fontunderline = {}; ///< "#True" without the closing sign reads false
    QString Fontstrikethru = {};
    QString Fontitalic = {};
    QString Fontcolor = {}; ///< decimal, red in the low byte
    QString Backcolor = {}; ///< likewise; white (16777215) is no background

    bool operator==(const FontTexts &) const = default;
};

/// What a settings file without the element's keys gives; empty texts for elements without a font.
const FontTexts &defaultFont(int element);

/// The print settings in memory: empty until they are loaded (initladen). One object for the life of the program.
class Druckvorgaben {
public:
    /// Each takes an element index from 1 to 20, others throw Error(Subscript).
    FontTexts &font(int element) { return m_fonts[slot(element)]; }
    const FontTexts &font(int element) const { return m_fonts[slot(element)]; }
    /// 1: printed (NeueSeite: the age list begins a page); any other value: not.
    qint16 &print(int element) { return m_print[slot(element)]; }
    const qint16 &print(int element) const { return m_print[slot(element)]; }
    bool isPrinted(int element) const { return print(element) == 1; }

    qint16 Bildprint = 0; ///< 1: the chart is printed
    double Abstand = 0;   ///< between two rows of the age list, as the file says; rowSpacing() is fit for a page

    /// From 0 to 1440; a spacing outside is the default one (50).
    print::Twips rowSpacing() const;

    bool operator==(const Druckvorgaben &) const = default;

private:
    static std::size_t slot(int element);

    std::array<FontTexts, 20> m_fonts;
    std::array<qint16, 20> m_print{};
};

/// All settings as a file without any key gives them.
Druckvorgaben defaultVorgaben();

// What each text means on the page. A text that means nothing there is replaced, never an error: no font name is
// Arial, a size outside 1 to 144 points the element's default size, a text colour that is none black, a background
// that is none no background.

inline constexpr double SmallestFontSize = 1;
inline constexpr double LargestFontSize = 144;

/// The element's font for the report. The strike-through text decides alone: underline never reaches the page.
print::TextStyle pageStyle(const Druckvorgaben &vorgaben, int element);
/// The same with underline, for the sample in the settings dialog.
print::TextStyle sampleStyle(const FontTexts &font, int element);

/// A colour of the settings; invalid where the text is no number from 0 to 16777215.
QColor settingsColor(const QString &text);
QString settingsColorText(const QColor &color);

/// Margins that leave at least a quarter of the paper in both directions and are not negative.
bool leavesRoom(const print::PageSetup &page);
/// The page with the control's usual margins instead of those that leave no room. `replaced` (may be null) tells.
print::PageSetup usablePage(print::PageSetup page, bool *replaced = nullptr);

} // namespace kalvenor::settings
