// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfparser.h"

#include "platform/richtext/rtfcharacters.h"
#include <algorithm>
#include <span>

namespace kalvenor::richtext {

namespace {

/// Groups within groups that are kept apart; office programs need some 20.
constexpr std::size_t DeepestGroup = 500;
constexpr int LongestTwips = 31680; ///< 22 inches, the longest that office programs take
constexpr int UsualHalfPoints = RtfLook().halfPoints;

constexpr std::string_view Pictures[] = {"pict", "shppict", "objdata"};
constexpr std::string_view OtherTexts[] = {"header",  "headerl", "headerr", "headerf",  "footer",
                                           "footerl", "footerr", "footerf", "footnote", "annotation",
                                           "shptxt",  "shpinst", "do"};
/// Tables and properties that show nothing by themselves.
constexpr std::string_view Properties[] = {"stylesheet",
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
                                           "bkmkend"};

bool isAmong(std::string_view word, std::span<const std::string_view> words)
{
    return std::ranges::find(words, word) != words.end();
}

bool isOneOf(std::string_view word, std::initializer_list<std::string_view> words)
{
    return isAmong(word, {words.begin(), words.size()});
}

} // namespace

RtfParser::RtfParser(QByteArrayView rtf, QTextDocument &document, const RtfLimits &limits)
    : m_tokens(rtf), m_flow(document, limits)
{
}

RtfResult RtfParser::parse()
{
    while (!m_ended && !m_flow.isFull()) {
        const RtfToken token = m_tokens.next();
        if (token.kind == RtfToken::Kind::End)
            break;
        take(token);
    }
    flushBytes();
    m_result.tooLarge = m_flow.isFull();
    m_result.damaged = m_result.damaged || (!m_result.tooLarge && !(m_ended && onlyBlanksFollow()));
    m_flow.finish(formats().character);
    return m_result;
}

/// Behind the end of the document's group, where nothing is read.
bool RtfParser::onlyBlanksFollow()
{
    RtfToken token = m_tokens.next();
    while (token.kind == RtfToken::Kind::Text && token.bytes.trimmed().isEmpty())
        token = m_tokens.next();
    return token.kind == RtfToken::Kind::End;
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
        takeSymbol(token.bytes);
        break;
    case Kind::Hex:
        if (token.hasValue)
            m_bytes += static_cast<char>(token.value);
        else
            m_result.damaged = true;
        break;
    case Kind::Text: {
        const qsizetype passed = std::min<qsizetype>(m_toPassOver, token.bytes.size());
        m_toPassOver -= static_cast<int>(passed);
        m_bytes += token.bytes.sliced(passed);
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
    if (token.kind == RtfToken::Kind::Word && specialCharacter(token.word()) == 0) {
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
        m_head.endFont();
    if (!m_outer.empty()) {
        m_state = m_outer.back();
        m_outer.pop_back();
    }
    m_formatKnown = false;
    if (ended == Destination::Bullet && around != Destination::Bullet)
        m_flow.takeBullet(m_bulletText, formats());
    if (ended == Destination::Numbering && around != Destination::Numbering)
        m_state.paragraph.bullets = m_numberingBullets;
    m_ended = m_outer.empty();
}

void RtfParser::takeWord(const RtfToken &token)
{
    const std::string_view word = token.word();
    const bool ignorable = m_ignorable;
    m_ignorable = false;
    if (destinationWord(word))
        return;
    if (ignorable)
        m_state.destination = Destination::Skip;
    else if (word == "u")
        takeUnicode(token.value);
    else if (word == "uc")
        m_state.fallback = std::clamp(token.value, 0, 1000);
    else if (const char16_t character = specialCharacter(word); character != 0)
        takeText(QString(QChar(character)));
    else if (!headWord(token) && m_state.destination != Destination::Fonts &&
             m_state.destination != Destination::Colors && !characterWord(token) && !paragraphWord(token) &&
             m_state.destination == Destination::Text)
        structureWord(word);
}

bool RtfParser::destinationWord(std::string_view word)
{
    Destination destination = Destination::Skip;
    if (word == "fonttbl") {
        destination = Destination::Fonts;
    } else if (word == "colortbl") {
        destination = Destination::Colors;
        m_head.beginColors();
    } else if (isOneOf(word, {"pntext", "listtext"})) {
        destination = Destination::Bullet;
        m_bulletText.clear();
    } else if (word == "pn") {
        destination = Destination::Numbering;
        m_numberingBullets = false;
    } else if (isAmong(word, Pictures)) {
        m_result.pictures = true;
    } else if (isAmong(word, OtherTexts)) {
        m_result.others = true;
    } else if (!isAmong(word, Properties)) {
        return false;
    }
    m_state.destination = destination;
    return true;
}

/// What is said once, in the head or in the tables of fonts and colours.
bool RtfParser::headWord(const RtfToken &token)
{
    if (m_head.takeWord(token.word(), token.value)) {
        if (token.word() == "deff") {
            m_state.look.font = token.value;
            m_formatKnown = false;
        }
        return true;
    }
    return (m_state.destination == Destination::Fonts && m_head.takeFontWord(token.word(), token.value)) ||
           (m_state.destination == Destination::Colors && m_head.takeColorWord(token.word(), token.value));
}

bool RtfParser::characterWord(const RtfToken &token)
{
    const std::string_view word = token.word();
    RtfLook &look = m_state.look;
    const bool on = !token.hasValue || token.value != 0;
    if (const auto flag = std::ranges::find(RtfFlags, word, &RtfFlag::on); flag != RtfFlags.end())
        look.*flag->flag = on;
    else if (word == RtfUnderline.off)
        look.underline = false;
    else if (word.starts_with("ul") && word != "ulc")
        look.underline = on;
    else if (word == "striked")
        look.strikeOut = on;
    else if (word == "f")
        look.font = token.value;
    else if (word == "fs")
        look.halfPoints = token.value > 0 ? std::clamp(token.value, 2, LargestHalfPoints) : UsualHalfPoints;
    else if (word == "cf")
        look.foreground = token.value;
    else if (isOneOf(word, {"cb", "highlight", "chcbpat"}))
        look.background = token.value;
    else if (isOneOf(word, {"v", "deleted"}))
        m_state.hidden = on;
    else if (word == "plain") {
        look = {.font = m_head.defaultFont()};
        m_state.hidden = false;
    } else
        return false;
    m_formatKnown = false;
    return true;
}

bool RtfParser::paragraphWord(const RtfToken &token)
{
    const std::string_view word = token.word();
    RtfOpenParagraph &open = m_state.paragraph;
    if (const auto length = std::ranges::find(RtfLengths, word, &RtfLength::word); length != RtfLengths.end())
        open.*length->length = std::clamp(token.value, length->isSigned ? -LongestTwips : 0, LongestTwips);
    else if (const auto known = std::ranges::find(RtfAlignments, word, &RtfAlignment::word);
             known != RtfAlignments.end())
        open.alignment = known->alignment;
    else if (word == "qd")
        open.alignment = Qt::AlignJustify;
    else if (word == "pard")
        open = {};
    else if (word == "ls")
        open.list = token.value;
    else if (word == "ilvl")
        open.level = std::clamp(token.value, 0, 8);
    else if (word == "pnlvlblt")
        m_numberingBullets = m_state.destination == Destination::Numbering;
    else
        return false;
    return true;
}

void RtfParser::structureWord(std::string_view word)
{
    if (isOneOf(word, {"par", "sect"})) {
        m_flow.endParagraph(formats());
    } else if (isOneOf(word, {"line", "lbr"})) {
        m_flow.breakLine(formats());
    } else if (isOneOf(word, {"page", "column"})) {
        m_flow.endPage(formats());
    } else if (isOneOf(word, {"cell", "nestcell"})) {
        m_result.tables = true;
        m_flow.endCell();
    } else if (isOneOf(word, {"row", "nestrow"})) {
        m_result.tables = true;
        m_flow.endRow(formats());
    } else if (word == "trowd") {
        m_result.tables = true;
    }
}

void RtfParser::takeSymbol(QByteArrayView sign)
{
    const char symbol = sign.front();
    if (symbol == '*')
        m_ignorable = true;
    else if (symbol == '\\' || symbol == '{' || symbol == '}')
        m_bytes += symbol;
    else if (const char16_t character = specialCharacter(symbol); character != 0)
        takeText(QString(QChar(character)));
}

void RtfParser::takeUnicode(int value)
{
    const char32_t code = value < 0 ? static_cast<char16_t>(value) : static_cast<char32_t>(value);
    m_toPassOver = m_state.fallback;
    if (code > QChar::LastValidCodePoint)
        return;
    const auto unit = static_cast<char16_t>(code);
    if (code > 0xFFFF)
        takeText(QString::fromUcs4(&code, 1));
    else if (codePage() == RtfCodePage::Symbol)
        takeText(QString(QChar(symbolCharacter(unit))));
    else
        takeText(QString(QChar(unit)));
}

void RtfParser::flushBytes()
{
    if (m_bytes.isEmpty())
        return;
    const QString text = decodeRtf(m_bytes, codePage());
    m_bytes.clear();
    takeText(text);
}

void RtfParser::takeText(const QString &text)
{
    switch (m_state.destination) {
    case Destination::Text:
        if (m_state.hidden)
            m_result.others = true;
        else
            m_flow.insert(text, formats());
        break;
    case Destination::Bullet:
        m_bulletText += text;
        break;
    case Destination::Fonts:
        m_head.takeFontText(text);
        break;
    case Destination::Colors:
        m_head.takeColorText(text);
        break;
    case Destination::Skip:
    case Destination::Numbering:
        break;
    }
}

int RtfParser::codePage() const
{
    return m_state.destination == Destination::Fonts ? m_head.nameCodePage() : m_head.codePage(m_state.look.font);
}

RtfFlow::Formats RtfParser::formats()
{
    if (!m_formatKnown)
        m_format = m_head.format(m_state.look);
    m_formatKnown = true;
    return {m_state.paragraph, m_format};
}

} // namespace kalvenor::richtext
