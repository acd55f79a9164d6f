// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfwriter.h"

#include "platform/basic/codepage.h"
#include "platform/richtext/rtfcharacters.h"
#include "platform/richtext/rtfreader.h"
#include <algorithm>
#include <cmath>
#include <QColor>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>
#include <vector>

using namespace Qt::StringLiterals;

namespace kalvenor::richtext {

namespace {

constexpr int LongestIndent = 30000; // twips
constexpr double FallbackPointSize = 10;
constexpr double PointsPerPixel = 0.75;
constexpr int BoldFrom = QFont::DemiBold;

struct Look {
    int font = -1;
    int halfPoints = 0;
    int foreground = 0;
    int background = 0;
    bool bold = false, italic = false, underline = false, strikeOut = false;
};

struct ParagraphLook {
    Qt::Alignment alignment;
    int left = 0, first = 0, right = 0, before = 0, after = 0; ///< twips
    bool bullet = false;

    bool operator==(const ParagraphLook &) const = default;
};

int twips(qreal pixels)
{
    return static_cast<int>(std::lround(std::clamp<qreal>(pixels * TwipsPerPixel, -LongestIndent, LongestIndent)));
}

QByteArray number(const char *word, int value)
{
    return word + QByteArray::number(value);
}

QByteArray escaped(QChar c)
{
    const QByteArray ansi = basic::encodeAnsi(QStringView(&c, 1));
    if (ansi != "?" || c == u'?')
        return "\\'" + QByteArrayView(ansi).toByteArray().toHex();
    return number("\\u", static_cast<qint16>(c.unicode())) + '?';
}

QByteArray characterOf(QChar c)
{
    switch (c.unicode()) {
    case u'{':
        return "\\{";
    case u'}':
        return "\\}";
    case u'\\': // "\\\\" would make words of what follows for a search that knows no escapes
    case u'"':  // would end the text in a record of a template
        return escaped(c);
    case u'\t':
        return "\\tab ";
    case QChar::LineSeparator:
        return "\\line ";
    case QChar::Nbsp:
        return "\\~";
    case QChar::SoftHyphen:
        return "\\-";
    default:
        return c.unicode() < 0x7F ? QByteArray(1, static_cast<char>(c.unicode())) : escaped(c);
    }
}

QString soundFontName(const QString &family)
{
    QString name = shownCharacters(family).simplified().left(LongestRtfFontName);
    name.removeIf([](QChar c) { return u"\\{};"_s.contains(c) || !c.isPrint(); });
    return name.simplified();
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
    void writeParagraphLook(const ParagraphLook &look);
    void writeLook(const QTextCharFormat &format);
    void writeText(const QString &text);
    void word(const QByteArray &word);
    Look lookOf(const QTextCharFormat &format);
    int fontIndex(const QString &named);
    int colorIndex(const QBrush &brush);
    QByteArray head() const;

    const QTextDocument &m_document;
    QFont m_default;
    QByteArray m_body;
    QStringList m_fonts;
    int m_bulletFont = -1; ///< its place among the fonts
    std::vector<QRgb> m_colors;
    Look m_look;
    ParagraphLook m_paragraph;
    bool m_first = true;
    bool m_afterWord = false; ///< the body ends in a control word that has no delimiter yet
};

ParagraphLook paragraphLookOf(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    ParagraphLook look{.alignment = format.alignment() & Qt::AlignHorizontal_Mask};
    look.right = std::max(twips(format.rightMargin()), 0);
    look.before = std::max(twips(format.topMargin()), 0);
    look.after = std::max(twips(format.bottomMargin()), 0);
    if (const QTextList *list = block.textList(); list != nullptr) {
        look.bullet = true;
        look.left = std::clamp(list->format().indent(), 1, 9) * TwipsPerListLevel;
        look.first = -TwipsPerListLevel / 2;
    } else {
        look.left = std::clamp(twips(format.leftMargin()) + format.indent() * TwipsPerListLevel, 0, LongestIndent);
        look.first = twips(format.textIndent());
    }
    return look;
}

void Writer::word(const QByteArray &word)
{
    m_body += word;
    m_afterWord = true;
}

void Writer::writeBlock(const QTextBlock &block)
{
    const ParagraphLook look = paragraphLookOf(block);
    // An empty paragraph is as high as the text that may come into it.
    const bool empty = block.begin().atEnd();
    const QTextCharFormat first = empty ? block.charFormat() : block.begin().fragment().charFormat();
    lookOf(first); // the first font of all gets number 0
    writeParagraphLook(look);
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
void Writer::writeParagraphLook(const ParagraphLook &look)
{
    if (look.bullet && m_bulletFont < 0) {
        m_bulletFont = static_cast<int>(m_fonts.size());
        m_fonts.append(u"Symbol"_s);
    }
    const QByteArray font = QByteArray::number(m_bulletFont);
    const QByteArray bulletText = "{\\pntext\\f" + font + "\\'b7\\tab}";
    if (!m_first && look == m_paragraph) {
        if (look.bullet)
            m_body += bulletText;
        return;
    }
    m_paragraph = look;
    m_body += "\\pard";
    if (look.bullet)
        m_body += bulletText + "{\\*\\pn\\pnlvlblt\\pnf" + font + "\\pnindent0{\\pntxtb\\'b7}}";
    if (look.first != 0)
        word(number("\\fi", look.first));
    if (look.left != 0)
        word(number("\\li", look.left));
    if (look.right != 0)
        word(number("\\ri", look.right));
    if (look.before != 0)
        word(number("\\sb", look.before));
    if (look.after != 0)
        word(number("\\sa", look.after));
    if (look.alignment & Qt::AlignHCenter)
        word("\\qc");
    else if (look.alignment & Qt::AlignRight)
        word("\\qr");
    else if (look.alignment & Qt::AlignJustify)
        word("\\qj");
    m_afterWord = true;
}

Look Writer::lookOf(const QTextCharFormat &format)
{
    Look look;
    double points = format.fontPointSize();
    if (points <= 0 && format.hasProperty(QTextFormat::FontPixelSize))
        points = format.intProperty(QTextFormat::FontPixelSize) * PointsPerPixel;
    if (points <= 0)
        points = m_default.pointSizeF() > 0 ? m_default.pointSizeF() : FallbackPointSize;
    look.halfPoints = std::clamp(static_cast<int>(std::lround(points * 2)), 2, LargestHalfPoints);
    const QStringList families = format.fontFamilies().toStringList();
    look.font = fontIndex(families.isEmpty() ? m_default.family() : families.constFirst());
    look.foreground = colorIndex(format.foreground());
    look.background = colorIndex(format.background());
    look.bold = format.fontWeight() >= BoldFrom;
    look.italic = format.fontItalic();
    look.underline = format.fontUnderline();
    look.strikeOut = format.fontStrikeOut();
    return look;
}

int Writer::fontIndex(const QString &named)
{
    QString family = soundFontName(named);
    if (family.isEmpty())
        family = soundFontName(m_default.family());
    for (qsizetype i = 0; i < m_fonts.size(); ++i) {
        if (m_fonts[i] == family && i != m_bulletFont)
            return static_cast<int>(i);
    }
    m_fonts.append(family);
    return static_cast<int>(m_fonts.size() - 1);
}

int Writer::colorIndex(const QBrush &brush)
{
    if (brush.style() == Qt::NoBrush || brush.color().alpha() == 0)
        return 0;
    const QRgb rgb = brush.color().rgb();
    const auto found = std::ranges::find(m_colors, rgb);
    const auto index = static_cast<int>(found - m_colors.begin()) + 1;
    if (found == m_colors.end())
        m_colors.push_back(rgb);
    return index;
}

void Writer::writeLook(const QTextCharFormat &format)
{
    const Look look = lookOf(format);
    const Look before = m_look;
    m_look = look;
    const auto flag = [this](bool was, bool is, const char *on, const char *off) {
        if (was != is)
            word(is ? on : off);
    };
    if (look.foreground != before.foreground)
        word(number("\\cf", look.foreground));
    if (look.background != before.background)
        word(number("\\highlight", look.background));
    flag(before.underline, look.underline, "\\ul", "\\ulnone");
    flag(before.bold, look.bold, "\\b", "\\b0");
    flag(before.italic, look.italic, "\\i", "\\i0");
    flag(before.strikeOut, look.strikeOut, "\\strike", "\\strike0");
    if (look.font != before.font)
        word(number("\\f", look.font));
    if (look.halfPoints != before.halfPoints)
        word(number("\\fs", look.halfPoints));
}

void Writer::writeText(const QString &text)
{
    for (const QChar c : shownCharacters(text)) {
        const QByteArray bytes = characterOf(c);
        if (m_afterWord && bytes.front() != '\\')
            m_body += ' ';
        m_afterWord = false;
        m_body += bytes;
    }
}

QByteArray Writer::head() const
{
    QByteArray fonts;
    for (qsizetype i = 0; i < m_fonts.size(); ++i) {
        fonts += "{\\f" + QByteArray::number(i) + "\\fnil" + (i == m_bulletFont ? "\\fcharset2 " : "\\fcharset0 ");
        for (const QChar c : m_fonts[i])
            fonts += c == u'_' ? escaped(c) : characterOf(c);
        fonts += ";}";
    }
    QByteArray head = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1031{\\fonttbl" + fonts + "}\r\n";
    if (!m_colors.empty()) {
        head += "{\\colortbl ;";
        for (const QRgb color : m_colors)
            head +=
                number("\\red", qRed(color)) + number("\\green", qGreen(color)) + number("\\blue", qBlue(color)) + ';';
        head += "}\r\n";
    }
    return head + "\\viewkind4\\uc1";
}

} // namespace

QByteArray writeRtf(const QTextDocument &document)
{
    return Writer(document).write();
}

} // namespace kalvenor::richtext
