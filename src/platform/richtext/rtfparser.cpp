// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfparser.h"

#include <algorithm>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace kalvenor::richtext {

namespace {

/// Groups within groups that are kept apart; office programs need some 20.
constexpr std::size_t DeepestGroup = 500;

bool is(QByteArrayView name, std::initializer_list<const char *> names)
{
    return std::ranges::any_of(names, [name](const char *one) { return name == QByteArrayView(one); });
}

} // namespace

RtfParser::RtfParser(QByteArrayView rtf, QTextDocument &document) : m_tokens(rtf), m_builder(document)
{
}

RtfResult RtfParser::parse()
{
    while (!m_ended && !m_builder.isFull()) {
        const RtfToken token = m_tokens.next();
        if (token.kind == RtfToken::Kind::End)
            break;
        take(token);
    }
    flushBytes();
    m_result.tooLarge = m_builder.isFull();
    m_result.damaged = m_result.damaged || (!m_ended && !m_result.tooLarge);
    if (m_touched || !m_builder.hasParagraphs()) {
        m_state.paragraph = m_lastParagraph;
        m_format = m_lastFormat;
        m_formatKnown = m_touched;
        endParagraph();
    }
    return m_result;
}

void RtfParser::take(const RtfToken &token)
{
    using Kind = RtfToken::Kind;
    if (token.kind != Kind::Text && token.kind != Kind::Hex)
        flushBytes();
    if (token.kind == Kind::GroupStart || token.kind == Kind::GroupEnd) {
        m_toPassOver = 0;
        m_ignorable = false;
        token.kind == Kind::GroupStart ? startGroup() : endGroup();
        return;
    }
    if (m_tooDeep > 0 || m_state.destination == Destination::Skip)
        return;
    if (token.kind != Kind::Text && passOverFallback(token))
        return;
    switch (token.kind) {
    case Kind::Word:
        takeWord(token);
        break;
    case Kind::Symbol:
        takeSymbol(token.bytes.front());
        break;
    case Kind::Hex:
        if (token.hasValue) {
            const char byte = static_cast<char>(token.value);
            takeBytes(QByteArrayView(&byte, 1));
        } else {
            m_result.damaged = true;
        }
        break;
    case Kind::Text: {
        const qsizetype passed = std::min<qsizetype>(m_toPassOver, token.bytes.size());
        m_toPassOver -= static_cast<int>(passed);
        takeBytes(token.bytes.sliced(passed));
        break;
    }
    default:
        break;
    }
}

bool RtfParser::passOverFallback(const RtfToken &token)
{
    if (m_toPassOver == 0)
        return false;
    if (token.kind == RtfToken::Kind::Word && specialCharacter(token.bytes) == 0) {
        m_toPassOver = 0; // a format is never lost to a fallback that is missing
        return false;
    }
    --m_toPassOver;
    return true;
}

void RtfParser::startGroup()
{
    if (m_tooDeep > 0 || m_outer.size() >= DeepestGroup) {
        m_result.damaged = true;
        ++m_tooDeep;
        return;
    }
    m_outer.push_back(m_state);
}

void RtfParser::endGroup()
{
    if (m_tooDeep > 0) {
        --m_tooDeep;
        return;
    }
    const Destination ended = m_state.destination;
    const Destination around = m_outer.empty() ? Destination::Text : m_outer.back().destination;
    if (ended == Destination::Fonts)
        endFont();
    if (!m_outer.empty()) {
        m_state = m_outer.back();
        m_outer.pop_back();
    }
    m_formatKnown = false;
    if (ended == Destination::Bullet && around != Destination::Bullet)
        endBullet();
    if (ended == Destination::Numbering && around != Destination::Numbering)
        m_state.paragraph.bullets = m_numberingBullets;
    m_ended = m_outer.empty();
}

void RtfParser::takeWord(const RtfToken &token)
{
    const QByteArrayView name = token.bytes;
    const bool ignorable = m_ignorable;
    m_ignorable = false;
    if (destinationWord(name))
        return;
    if (ignorable) {
        m_state.destination = Destination::Skip;
        return;
    }
    if (name == QByteArrayView("u")) {
        takeUnicode(token.value);
    } else if (name == QByteArrayView("uc")) {
        m_state.fallback = std::clamp(token.value, 0, 1000);
    } else if (const char16_t character = specialCharacter(name); character != 0) {
        takeText(QString(QChar(character)));
    } else if (!headWord(token) && m_state.destination != Destination::Fonts &&
               m_state.destination != Destination::Colors) {
        if (characterWord(token))
            m_formatKnown = false;
        else if (!paragraphWord(token))
            structureWord(name);
    }
}

bool RtfParser::destinationWord(QByteArrayView name)
{
    Destination destination = Destination::Skip;
    if (is(name, {"fonttbl"})) {
        destination = Destination::Fonts;
    } else if (is(name, {"colortbl"})) {
        destination = Destination::Colors;
        m_openColor = QColor();
    } else if (is(name, {"pntext", "listtext"})) {
        destination = Destination::Bullet;
        m_bulletText.clear();
    } else if (is(name, {"pn"})) {
        destination = Destination::Numbering;
        m_numberingBullets = false;
    } else if (is(name, {"pict", "shppict", "objdata"})) {
        m_result.pictures = true;
    } else if (is(name, {"header", "headerl", "headerr", "headerf", "footer", "footerl", "footerr", "footerf",
                         "footnote", "annotation", "shptxt", "shpinst", "do"})) {
        m_result.others = true;
    } else if (!is(name, {"stylesheet",
                          "info",
                          "fldinst",
                          "nonshppict",
                          "nonesttables",
                          "listtable",
                          "listoverridetable",
                          "revtbl",
                          "generator",
                          "xe",
                          "tc",
                          "rxe",
                          "txe",
                          "falt",
                          "panose",
                          "fontemb",
                          "nesttableprops",
                          "themedata",
                          "template",
                          "filetbl",
                          "bkmkstart",
                          "bkmkend"})) {
        return false;
    }
    m_state.destination = destination;
    return true;
}

/// What is said once, in the head or in the tables of fonts and colours.
bool RtfParser::headWord(const RtfToken &token)
{
    const QByteArrayView name = token.bytes;
    if (name == QByteArrayView("ansicpg")) {
        m_codePage = token.value;
    } else if (name == QByteArrayView("mac")) {
        m_codePage = RtfCodePage::Mac;
    } else if (name == QByteArrayView("pc")) {
        m_codePage = 437;
    } else if (name == QByteArrayView("pca")) {
        m_codePage = 850;
    } else if (name == QByteArrayView("deff")) {
        m_defaultFont = token.value;
        m_state.character.font = token.value;
        m_formatKnown = false;
    } else if (m_state.destination == Destination::Fonts && name == QByteArrayView("f")) {
        endFont();
        m_openFont = token.value;
        m_fonts.insert(m_openFont, {});
    } else if (m_state.destination == Destination::Fonts && name == QByteArrayView("fcharset")) {
        m_fonts[m_openFont].codePage = token.value == 2 ? RtfCodePage::Symbol : codePageOfCharacterSet(token.value, 0);
    } else if (m_state.destination == Destination::Fonts && name == QByteArrayView("cpg")) {
        m_fonts[m_openFont].codePage = token.value;
    } else if (m_state.destination == Destination::Colors && is(name, {"red", "green", "blue"})) {
        if (!m_openColor.isValid())
            m_openColor = QColor(0, 0, 0);
        const int part = std::clamp(token.value, 0, 255);
        name == QByteArrayView("red")     ? m_openColor.setRed(part)
        : name == QByteArrayView("green") ? m_openColor.setGreen(part)
                                          : m_openColor.setBlue(part);
    } else {
        return false;
    }
    return true;
}

bool RtfParser::characterWord(const RtfToken &token)
{
    const QByteArrayView name = token.bytes;
    CharacterState &state = m_state.character;
    const bool on = !token.hasValue || token.value != 0;
    if (name == QByteArrayView("b"))
        state.bold = on;
    else if (name == QByteArrayView("i"))
        state.italic = on;
    else if (name == QByteArrayView("f"))
        state.font = token.value;
    else if (name == QByteArrayView("fs"))
        state.halfPoints = token.value > 0 ? std::clamp(token.value, 2, LargestHalfPoints) : 24;
    else if (name == QByteArrayView("cf"))
        state.foreground = token.value;
    else if (is(name, {"cb", "highlight", "chcbpat"}))
        state.background = token.value;
    else if (name == QByteArrayView("ulnone"))
        state.underline = false;
    else if (name.startsWith("ul") && name != QByteArrayView("ulc"))
        state.underline = on;
    else if (is(name, {"strike", "striked"}))
        state.strikeOut = on;
    else if (is(name, {"v", "deleted"}))
        state.hidden = on;
    else if (name == QByteArrayView("plain"))
        state = CharacterState{.font = m_defaultFont};
    else
        return false;
    return true;
}

bool RtfParser::paragraphWord(const RtfToken &token)
{
    // 22 inches, the longest that office programs take
    constexpr int Longest = 31680;
    const QByteArrayView name = token.bytes;
    ParagraphState &state = m_state.paragraph;
    const int length = std::clamp(token.value, -Longest, Longest);
    if (name == QByteArrayView("pard"))
        state = {};
    else if (name == QByteArrayView("ql"))
        state.alignment = Qt::AlignLeft;
    else if (name == QByteArrayView("qc"))
        state.alignment = Qt::AlignHCenter;
    else if (name == QByteArrayView("qr"))
        state.alignment = Qt::AlignRight;
    else if (is(name, {"qj", "qd"}))
        state.alignment = Qt::AlignJustify;
    else if (name == QByteArrayView("li"))
        state.left = std::max(length, 0);
    else if (name == QByteArrayView("fi"))
        state.first = length;
    else if (name == QByteArrayView("ri"))
        state.right = std::max(length, 0);
    else if (name == QByteArrayView("sb"))
        state.before = std::max(length, 0);
    else if (name == QByteArrayView("sa"))
        state.after = std::max(length, 0);
    else if (name == QByteArrayView("ls"))
        state.list = token.value;
    else if (name == QByteArrayView("ilvl"))
        state.level = std::clamp(token.value, 0, 8);
    else if (name == QByteArrayView("pnlvlblt"))
        m_numberingBullets = m_state.destination == Destination::Numbering;
    else
        return false;
    return true;
}

bool RtfParser::structureWord(QByteArrayView name)
{
    if (m_state.destination != Destination::Text)
        return false;
    if (name == QByteArrayView("par") || name == QByteArrayView("sect"))
        endParagraph();
    else if (is(name, {"line", "lbr"}))
        breakLine();
    else if (is(name, {"page", "column"})) {
        if (m_touched)
            endParagraph();
    } else if (is(name, {"cell", "nestcell"})) {
        m_result.tables = true;
        m_touched = true;
        ++m_cells;
    } else if (is(name, {"row", "nestrow"}))
        endRow();
    else if (name == QByteArrayView("trowd"))
        m_result.tables = true;
    else
        return false;
    return true;
}

void RtfParser::takeSymbol(char symbol)
{
    switch (symbol) {
    case '*':
        m_ignorable = true;
        break;
    case '~':
        takeText(QString(QChar(QChar::Nbsp)));
        break;
    case '_':
        takeText(QString(QChar(0x2011)));
        break;
    case '-':
        takeText(QString(QChar(QChar::SoftHyphen)));
        break;
    case '\t':
        takeText(u"\t"_s);
        break;
    case '\\':
    case '{':
    case '}':
        takeBytes(QByteArrayView(&symbol, 1));
        break;
    default:
        break;
    }
}

void RtfParser::takeUnicode(int value)
{
    const char32_t code = value < 0 ? static_cast<char16_t>(value) : static_cast<char32_t>(value);
    if (code <= QChar::LastValidCodePoint) {
        const bool symbols = codePage() == RtfCodePage::Symbol && m_state.destination != Destination::Fonts;
        takeText(code > 0xFFFF ? QString::fromUcs4(&code, 1)
                               : QString(QChar(symbols ? symbolCharacter(static_cast<char16_t>(code))
                                                       : static_cast<char16_t>(code))));
    }
    m_toPassOver = m_state.fallback;
}

} // namespace kalvenor::richtext
