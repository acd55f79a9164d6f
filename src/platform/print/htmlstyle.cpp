// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/htmlstyle.h"

#include "platform/print/pagegeometry.h"
#include "platform/print/textface.h"
#include "platform/print/writerparts.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

constexpr const char *BaseRules = R"(*{box-sizing:border-box}
html{background:#ececec;color-scheme:light}
body{margin:18pt auto;font-size:6pt;background:#fff;color:#000;line-height:1.25;overflow-wrap:anywhere}
p,h1,h2,h3,td,th,li,.run span{white-space:pre-wrap}
p,h1,h2,h3,ul{margin:0;padding:0;font:inherit}
img{max-width:100%;height:auto}
.c{text-align:center}
.r{text-align:right}
.j{text-align:justify}
.keep{break-after:avoid}
.page{break-before:page}
.run{display:flex;gap:1em;margin:0 0 1.5em}
footer.run{margin:1.5em 0 0}
.run span{flex:1}
.run span:nth-child(2){text-align:center}
.run span:nth-child(3){text-align:right}
table{table-layout:fixed;border-collapse:collapse}
td,th{padding:var(--gap) 3.5pt 0;vertical-align:top;font-weight:inherit;text-align:left}
thead{display:table-header-group}
tr,img{break-inside:avoid}
h1,h2,h3,thead{break-after:avoid}
p{orphans:2;widows:2}
)";

/// For paper and for narrow windows; behind the rules that they override.
constexpr const char *MediaRules =
    R"(@media screen and (max-width:45em){html{background:#fff}body{margin:0;padding:9pt}main table{width:100%!important;margin:0!important}}
@media print{html{background:#fff}body{margin:0;padding:0;max-width:none}}
)";

std::vector<Column> withoutWidths(std::vector<Column> columns)
{
    for (Column &column : columns)
        column.width = 0;
    return columns;
}

const char *genericFamily(const QString &family)
{
    switch (fontKind(family)) {
    case FontKind::Serif:
        return "serif";
    case FontKind::Fixed:
        return "monospace";
    default:
        return "sans-serif";
    }
}

/// The page box's corner texts that hold a page number.
QByteArray marginBoxes(const PrintDocument &document, const RunningText &text, const char *edge)
{
    constexpr std::array<const char *, 3> places{"left", "center", "right"};
    const std::array<QString, 3> parts = runningTextParts(QString(text.text).replace("%d"_L1, PageMark), 0);
    const TextStyle &style = document.styles().at(static_cast<std::size_t>(text.style));
    QByteArray out;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const QStringList pieces = printable(parts[i]).split(PageMark);
        if (pieces.size() < 2)
            continue;
        out += QByteArray("@") + edge + '-' + places[i] + "{font:" + QByteArray::number(style.pointSize) + "pt " +
               cssString(style.family) + ',' + genericFamily(style.family) + ";content:" + cssString(pieces.front());
        for (qsizetype n = 1; n < pieces.size(); ++n)
            out += " counter(page) " + cssString(pieces[n]);
        out += '}';
    }
    return out;
}

} // namespace

void appendHtmlText(QByteArray &out, QStringView text)
{
    const auto special = [](QChar c) {
        return c == u'&' || c == u'<' || c == u'>' || c == u'\n';
    };
    for (;;) {
        const auto end = std::find_if(text.begin(), text.end(), special);
        out += text.left(end - text.begin()).toUtf8();
        if (end == text.end())
            return;
        out += *end == u'&' ? "&amp;" : *end == u'<' ? "&lt;" : *end == u'>' ? "&gt;" : "<br/>";
        text = text.mid(end - text.begin() + 1);
    }
}

QByteArray htmlAttribute(QStringView text)
{
    QByteArray out;
    appendHtmlText(out, QString(text.toString()).replace(u'\n', u' '));
    return '"' + out.replace('"', "&quot;") + '"';
}

QByteArray cssString(QStringView text)
{
    QString out = u"'"_s;
    for (const QChar c : text) {
        if (QStringView(u"'\"\\<>&").contains(c) || c < u' ')
            out += u'\\' + QString::number(c.unicode(), 16) + u' ';
        else
            out += c;
    }
    return (out + u'\'').toUtf8();
}

QByteArray cssLength(double twips)
{
    return QByteArray::number(twips / 20, 'g', 6) + "pt";
}

HtmlStyle::HtmlStyle(const PrintDocument &document, const QRectF &area) : m_sheet(BaseRules)
{
    addPage(document, area);
    for (std::size_t i = 0; i < document.styles().size(); ++i)
        addStyle(document.styles()[i], i);
    for (const Block &block : document.blocks()) {
        const auto *table = std::get_if<TableStart>(&block);
        if (table == nullptr || tableClass(table->columns) < m_tables.size())
            continue;
        m_tables.push_back(withoutWidths(table->columns));
        addTable(table->columns, m_tables.size() - 1);
    }
    m_sheet += MediaRules;
}

std::size_t HtmlStyle::tableClass(const std::vector<Column> &columns) const
{
    const auto found = std::find(m_tables.begin(), m_tables.end(), withoutWidths(columns));
    return static_cast<std::size_t>(found - m_tables.begin());
}

void HtmlStyle::addPage(const PrintDocument &document, const QRectF &area)
{
    const QSizeF paper = paperSize(document.page);
    m_sheet += "@page{size:" + cssLength(paper.width()) + ' ' + cssLength(paper.height()) +
               ";margin:" + cssLength(area.top()) + ' ' + cssLength(paper.width() - area.right()) + ' ' +
               cssLength(paper.height() - area.bottom()) + ' ' + cssLength(area.left()) + ';' +
               marginBoxes(document, document.header, "top") + marginBoxes(document, document.footer, "bottom") + "}\n";
    m_sheet += "body{max-width:" + cssLength(paper.width()) + ";padding:" + cssLength(document.page.headerDistance) +
               ' ' + cssLength(paper.width() - area.right()) + ' ' + cssLength(document.page.footerDistance) + ' ' +
               cssLength(area.left()) + "}\n";
}

void HtmlStyle::addStyle(const TextStyle &style, std::size_t number)
{
    m_sheet += ".s" + QByteArray::number(number) + "{font:";
    if (style.italic)
        m_sheet += "italic ";
    if (style.bold)
        m_sheet += "bold ";
    m_sheet +=
        QByteArray::number(style.pointSize) + "pt/1.25 " + cssString(style.family) + ',' + genericFamily(style.family);
    if (style.color.isValid())
        m_sheet += ";color:" + style.color.name().toLatin1();
    if (style.background.isValid())
        m_sheet += ";background:" + style.background.name().toLatin1();
    if (style.underline || style.strikeOut)
        m_sheet += QByteArray(";text-decoration:") + (style.underline ? "underline " : "") +
                   (style.strikeOut ? "line-through" : "");
    m_sheet += "}\n";
}

void HtmlStyle::addTable(const std::vector<Column> &columns, std::size_t number)
{
    constexpr const char *alignments[]{"", "text-align:center;", "text-align:right;", "text-align:justify;"};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        QByteArray rule = alignments[static_cast<int>(columns[i].alignment)];
        if (columns[i].overflow == Overflow::Elide)
            rule += "white-space:pre;overflow:hidden;text-overflow:ellipsis;";
        if (rule.isEmpty())
            continue;
        const QByteArray table = ".t" + QByteArray::number(number);
        const QByteArray place = ":nth-child(" + QByteArray::number(i + 1) + ")";
        m_sheet += table + " td" + place + ',' + table + " th" + place + '{' + rule + "}\n";
    }
}

} // namespace kalvenor::print
