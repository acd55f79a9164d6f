// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/store/druckvorgaben.h"

#include "data/datevalue.h"
#include "platform/basic/error.h"
#include "platform/basic/number.h"
#include "platform/basic/text.h"
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

namespace {

constexpr int White = 0xFFFFFF;
constexpr double DefaultSpacing = 50;
constexpr double LargestSpacing = 1440;

FontTexts fontTexts(const char *size, const char *bold, const char *underline)
{
    const QString no = u"#False#"_s;
    return {u"Arial"_s,
            QString::fromLatin1(size),
            QString::fromLatin1(bold),
            QString::fromLatin1(underline),
            no,
            no,
            u"0"_s,
            u"16777215"_s};
}

double pointSize(const FontTexts &font, int element)
{
    const auto fits = [](double size) {
        return size >= SmallestFontSize && size <= LargestFontSize;
    };
    for (const QString &text : {font.Fontsize, defaultFont(element).Fontsize}) {
        if (const double size = basic::leadingNumber(text); fits(size))
            return size;
    }
    return print::TextStyle().pointSize;
}

} // namespace

const FontTexts &defaultFont(int element)
{
    // "#True" and "#False" without their closing sign are what existing installations know: both read false.
    static const std::array<FontTexts, 7> fonts = {
        fontTexts("15", "#True#", "#True#"), fontTexts("12", "#True#", "#True"),   fontTexts("10", "#False#", "#False"),
        fontTexts("14", "#True#", "#True"),  fontTexts("10", "#True#", "#False#"), fontTexts("8", "#False#", "#False"),
        fontTexts("8", "#False#", "#False")};
    static const FontTexts none;
    const auto *at = std::ranges::find(FontElements, element);
    return at == FontElements.end() ? none : fonts[static_cast<std::size_t>(at - FontElements.begin())];
}

std::size_t Druckvorgaben::slot(int element)
{
    if (element < 1 || element > 20)
        throw basic::Error(basic::Fault::NoPrintElement, {}, {element});
    return static_cast<std::size_t>(element - 1);
}

print::Twips Druckvorgaben::rowSpacing() const
{
    return basic::toLong32(Abstand >= 0 && Abstand <= LargestSpacing ? Abstand : DefaultSpacing);
}

Druckvorgaben defaultVorgaben()
{
    Druckvorgaben vorgaben;
    for (const Element element : FontElements)
        vorgaben.font(element) = defaultFont(element);
    for (const Element element : {TitelKriterien, TitelAltersliste, NeueSeite, Header, Footer})
        vorgaben.print(element) = 1;
    vorgaben.Bildprint = 1;
    vorgaben.Abstand = DefaultSpacing;
    return vorgaben;
}

print::TextStyle pageStyle(const Druckvorgaben &vorgaben, int element)
{
    print::TextStyle style = sampleStyle(vorgaben.font(element), element);
    style.underline = false;
    return style;
}

print::TextStyle sampleStyle(const FontTexts &font, int element)
{
    print::TextStyle style;
    if (const QString family = basic::trimBlanks(font.Fontname); !family.isEmpty())
        style.family = family;
    style.pointSize = pointSize(font, element);
    style.bold = data::textwahr(font.Fontbold);
    style.italic = data::textwahr(font.Fontitalic);
    style.underline = data::textwahr(font.Fontunderline);
    style.strikeOut = data::textwahr(font.Fontstrikethru);
    style.color = settingsColor(font.Fontcolor);
    if (const QColor background = settingsColor(font.Backcolor); background != QColor(Qt::white))
        style.background = background;
    return style;
}

QColor settingsColor(const QString &text)
{
    // Here a text without a number must not become black: black text on a black ground could not be read.
    const QString trimmed = basic::trimBlanks(text);
    const double value = basic::leadingNumber(trimmed);
    const bool isNumber = !trimmed.isEmpty() && (value != 0 || trimmed.startsWith(u'0'));
    if (!isNumber || !(value >= 0 && value <= White))
        return {};
    const int bgr = basic::toLong32(value);
    return {bgr & 0xFF, bgr >> 8 & 0xFF, bgr >> 16 & 0xFF};
}

QString settingsColorText(const QColor &color)
{
    return QString::number(color.red() | color.green() << 8 | color.blue() << 16);
}

bool leavesRoom(const print::PageSetup &page)
{
    const qint64 width = page.landscape ? page.paperHeight : page.paperWidth;
    const qint64 height = page.landscape ? page.paperWidth : page.paperHeight;
    return std::min({page.left, page.top, page.right, page.bottom}) >= 0 &&
           4 * (width - page.left - page.right) >= width && 4 * (height - page.top - page.bottom) >= height;
}

print::PageSetup usablePage(print::PageSetup page, bool *replaced)
{
    const bool usable = leavesRoom(page);
    if (!usable) {
        const print::PageSetup usual;
        page.left = usual.left;
        page.top = usual.top;
        page.right = usual.right;
        page.bottom = usual.bottom;
    }
    if (replaced != nullptr)
        *replaced = !usable;
    return page;
}

} // namespace kalvenor::settings
