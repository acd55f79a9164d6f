// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfwriter.h"

#include "platform/richtext/rtfcharacters.h"
#include "platform/richtext/rtfreader.h"
#include "platform/richtext/rtftables.h"
#include "platform/richtext/rtfwords.h"
#include <algorithm>
#include <cmath>
#include <QBrush>
#include <QFont>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <utility>

namespace kalvenor::richtext {

namespace {

constexpr int LongestIndent = 30000; // twips
constexpr double FallbackPointSize = 10;
constexpr double PointsPerPixel = 0.75;
constexpr int BoldFrom = QFont::DemiBold;

struct WrittenParagraph : RtfParagraph {
    bool bullet = false;

    bool operator==(const WrittenParagraph &) const = default;
};

int twips(qreal pixels)
{
    return static_cast<int>(std::lround(std::clamp<qreal>(pixels * TwipsPerPixel, -LongestIndent, LongestIndent)));
}

void appendCharacter(QByteArray &out, QChar c)
{
    switch (c.unicode()) {
    case u'\\': // an escaped one would make words of what follows for a search that knows no escapes
    case u'"':  // would end the text in a record of a template
        appendRtfCode(out, c.unicode());
        break;
    case QChar::LineSeparator:
        out += "\\line ";
        break;
    case QChar::Nbsp:
        out += "\\~";
        break;
    case QChar::SoftHyphen:
        out += "\\-";
        break;
    default:
        appendRtf(out, c.unicode());
    }
}

class Writer {
public:
    explicit Writer(const QTextDocument &document) : m_document(document), m_default(document.defaultFont()) {}

    QByteArray write()
    {
        for (QTextBlock block = m_document.begin(); block.isValid(); block = block.next())
            writeBlock(block);
        return head() + m_body + "}\r\n";
    }

private:
    void writeBlock(const QTextBlock &block);
    void writeParagraph(const WrittenParagraph &paragraph);
    void writeLook(const QTextCharFormat &format);
    void writeText(const QString &text);
    void word(const QByteArray &word);
    RtfLook lookOf(const QTextCharFormat &format);
    int colorOf(const QBrush &brush);
    QByteArray head() const;

    const QTextDocument &m_document;
    QFont m_default;
    QByteArray m_body;
    RtfFonts m_fonts;
    RtfColors m_colors;
    RtfLook m_look{.font = -1, .halfPoints = 0};
    WrittenParagraph m_paragraph;
    bool m_first = true;
    bool m_afterWord = false; ///< the body ends in a control word that has no delimiter yet
};

WrittenParagraph paragraphOf(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    WrittenParagraph paragraph;
    paragraph.alignment = format.alignment() & Qt::AlignHorizontal_Mask;
    paragraph.right = std::max(twips(format.rightMargin()), 0);
    paragraph.before = std::max(twips(format.topMargin()), 0);
    paragraph.after = std::max(twips(format.bottomMargin()), 0);
    if (const QTextList *list = block.textList(); list != nullptr) {
        paragraph.bullet = true;
        paragraph.left = std::clamp(list->format().indent(), 1, 9) * TwipsPerListLevel;
        paragraph.first = -TwipsPerListLevel / 2;
    } else {
        paragraph.left = std::clamp(twips(format.leftMargin()) + format.indent() * TwipsPerListLevel, 0, LongestIndent);
        paragraph.first = twips(format.textIndent());
    }
    return paragraph;
}

void Writer::word(const QByteArray &word)
{
    m_body += word;
    m_afterWord = true;
}

void Writer::writeBlock(const QTextBlock &block)
{
    // An empty paragraph is as high as the text that may come into it.
    const bool empty = block.begin().atEnd();
    const QTextCharFormat first = empty ? block.charFormat() : block.begin().fragment().charFormat();
    lookOf(first); // the first font of all gets number 0
    writeParagraph(paragraphOf(block));
    if (empty)
        writeLook(first);
    m_first = false;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        writeLook(at.fragment().charFormat());
        writeText(at.fragment().text());
    }
    m_body += "\\par\r\n";
    m_afterWord = false;
}

/// Bullets stand before the formats of characters, so that a size is never followed by a brace.
void Writer::writeParagraph(const WrittenParagraph &paragraph)
{
    const QByteArray font = paragraph.bullet ? QByteArray::number(m_fonts.symbols()) : QByteArray();
    const QByteArray bulletText = "{\\pntext\\f" + font + "\\'b7\\tab}";
    if (!m_first && paragraph == m_paragraph) {
        if (paragraph.bullet)
            m_body += bulletText;
        return;
    }
    m_paragraph = paragraph;
    word("\\pard");
    if (paragraph.bullet)
        m_body += bulletText + "{\\*\\pn\\pnlvlblt\\pnf" + font + "\\pnindent0{\\pntxtb\\'b7}}";
    for (const RtfLength &length : RtfLengths) {
        if (const int twips = paragraph.*length.length; twips != 0)
            word(rtfWord(length.word, twips));
    }
    for (const RtfAlignment &known : RtfAlignments) {
        if (known.alignment != Qt::AlignLeft && paragraph.alignment.testFlag(known.alignment))
            word(rtfWord(known.word));
    }
}

RtfLook Writer::lookOf(const QTextCharFormat &format)
{
    double points = format.fontPointSize();
    if (points <= 0 && format.hasProperty(QTextFormat::FontPixelSize))
        points = format.intProperty(QTextFormat::FontPixelSize) * PointsPerPixel;
    if (points <= 0)
        points = m_default.pointSizeF() > 0 ? m_default.pointSizeF() : FallbackPointSize;
    const QStringList families = format.fontFamilies().toStringList();
    int font = families.isEmpty() ? -1 : m_fonts.place(families.constFirst());
    if (font < 0)
        font = std::max(m_fonts.place(m_default.family()), 0);
    return {.font = font,
            .halfPoints = std::clamp(static_cast<int>(std::lround(points * 2)), 2, LargestHalfPoints),
            .foreground = colorOf(format.foreground()),
            .background = colorOf(format.background()),
            .bold = format.fontWeight() >= BoldFrom,
            .italic = format.fontItalic(),
            .underline = format.fontUnderline(),
            .strikeOut = format.fontStrikeOut()};
}

int Writer::colorOf(const QBrush &brush)
{
    return brush.style() == Qt::NoBrush || brush.color().alpha() == 0 ? 0 : m_colors.place(brush.color().rgb());
}

void Writer::writeLook(const QTextCharFormat &format)
{
    const RtfLook before = std::exchange(m_look, lookOf(format));
    if (m_look.foreground != before.foreground)
        word(rtfWord("cf", m_look.foreground));
    if (m_look.background != before.background)
        word(rtfWord("highlight", m_look.background));
    for (const RtfFlag &flag : {RtfUnderline, RtfBold, RtfItalic, RtfStrikeOut}) {
        if (m_look.*flag.flag != before.*flag.flag)
            word(rtfWord(m_look.*flag.flag ? flag.on : flag.off));
    }
    if (m_look.font != before.font)
        word(rtfWord("f", m_look.font));
    if (m_look.halfPoints != before.halfPoints)
        word(rtfWord("fs", m_look.halfPoints));
}

void Writer::writeText(const QString &text)
{
    for (const QChar c : shownCharacters(text)) {
        const qsizetype at = m_body.size();
        appendCharacter(m_body, c);
        if (m_afterWord && m_body[at] != '\\')
            m_body.insert(at, ' ');
        m_afterWord = false;
    }
}

QByteArray Writer::head() const
{
    QByteArray head = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031" + m_fonts.table(u"_\"") + "\r\n";
    if (!m_colors.isEmpty())
        head += "{\\colortbl ;" + m_colors.entries() + "}\r\n";
    return head + "\\viewkind4\\uc1";
}

} // namespace

QByteArray writeRtf(const QTextDocument &document)
{
    return Writer(document).write();
}

} // namespace kalvenor::richtext
