// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pdfoutline.h"

#include <algorithm>

namespace kalvenor::print {
namespace {

constexpr qsizetype HeadSize = 64 * 1024; // before it a colour profile of 3 KB at most
constexpr qsizetype TailBase = 64 * 1024; // fonts have few objects
constexpr qsizetype TailPage = 400;       // objects of a page (6 to 8) at 20 bytes, its place in the list of pages

/// What stands between two marks behind `from`; empty where there is nothing.
QByteArray between(const QByteArray &text, qsizetype from, const char *begin, const char *end)
{
    const qsizetype start = from < 0 ? -1 : text.indexOf(begin, from);
    if (start < 0)
        return {};
    const qsizetype first = start + static_cast<qsizetype>(qstrlen(begin));
    const qsizetype stop = text.indexOf(end, first);
    return stop < 0 ? QByteArray() : text.mid(first, stop - first).trimmed();
}

QByteArray reference(qsizetype object)
{
    return QByteArray::number(object) + " 0 R";
}

/// A text string (7.9.2.2) in UTF-16 with its mark, as hexadecimal digits.
QByteArray textString(const QString &text)
{
    QByteArray bytes("\xFE\xFF");
    for (const QChar c : text) {
        bytes += static_cast<char>(c.unicode() >> 8);
        bytes += static_cast<char>(c.unicode() & 0xFF);
    }
    return '<' + bytes.toHex() + '>';
}

QByteArray crossReference(qint64 place)
{
    return QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n";
}

} // namespace

PdfOutline::PdfOutline(const PageLayout &layout)
    : m_language(layout.language().toLatin1()),
      m_tailSize(TailBase + TailPage * static_cast<qsizetype>(layout.pages().size()))
{
    for (std::size_t page = 0; page < layout.pages().size(); ++page) {
        for (const PlacedHeading &heading : layout.pages()[page].headings) {
            if (!heading.title.isEmpty())
                m_items.push_back({heading.title, heading.level, page, (layout.paperSize().height() - heading.y) / 20});
        }
    }
}

void PdfOutline::watch(const char *data, qint64 size)
{
    if (m_head.size() < HeadSize)
        m_head.append(data, std::min(size, HeadSize - m_head.size()));
    m_tail.append(data, size);
    if (m_tail.size() > 4 * m_tailSize)
        m_tail.remove(0, m_tail.size() - m_tailSize);
    m_size += size;
}

QByteArray PdfOutline::update() const
{
    const qsizetype trailer = m_tail.lastIndexOf("trailer");
    const QByteArray root = between(m_tail, trailer, "/Root ", " 0 R");
    const qsizetype size = between(m_tail, trailer, "/Size ", "\n").toLongLong();
    const QByteArray info = between(m_tail, trailer, "/Info ", "\n");
    const QByteArray id = between(m_tail, trailer, "/ID ", "\n");
    const QByteArray previous = between(m_tail, trailer, "startxref", "%%EOF");
    const QByteArray catalog = between(m_head, m_head.indexOf('\n' + root + " 0 obj"), "<<", "endobj");
    const QByteArray pageRoot = between(catalog, 0, "/Pages ", " 0 R");
    const QByteArray kids = between(m_tail, m_tail.lastIndexOf('\n' + pageRoot + " 0 obj"), "/Kids", "]");
    std::vector<QByteArray> pages;
    for (const QByteArray &kid : kids.mid(kids.indexOf('[') + 1).split('R')) {
        if (!kid.trimmed().isEmpty())
            pages.push_back(kid.trimmed() + " R");
    }
    const bool known = size > 0 && !root.isEmpty() && !info.isEmpty() && !previous.isEmpty() && catalog.endsWith(">>");
    if (!known || std::any_of(m_items.begin(), m_items.end(), [&](const Item &i) { return i.page >= pages.size(); }))
        return {};

    const qint64 catalogPlace = m_size;
    QByteArray out = root + " 0 obj\n<<\n" + catalog.chopped(2) + "/Lang (" + m_language +
                     ")\n/ViewerPreferences << /DisplayDocTitle true >>\n";
    if (!m_items.empty())
        out += "/Outlines " + reference(size) + "\n/PageMode /UseOutlines\n";
    out += ">>\nendobj\n";
    std::vector<qsizetype> places;
    if (!m_items.empty())
        out += items(pages, size, places, m_size + out.size());

    const qint64 table = m_size + out.size();
    out += "xref\n" + root + " 1\n" + crossReference(catalogPlace);
    if (!places.empty())
        out += QByteArray::number(size) + ' ' + QByteArray::number(places.size()) + '\n';
    for (const qsizetype place : places)
        out += crossReference(place);
    out += "trailer\n<<\n/Size " + QByteArray::number(size + static_cast<qsizetype>(places.size())) + "\n/Info " +
           info + "\n/Root " + root + " 0 R\n" + (id.isEmpty() ? QByteArray() : "/ID " + id + '\n') + "/Prev " +
           previous + "\n>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
    return out;
}

/// The root of the outline and its items (12.3.3), numbered on from `firstObject`, and the place of each in the file.
QByteArray PdfOutline::items(const std::vector<QByteArray> &pages, qsizetype firstObject,
                             std::vector<qsizetype> &places, qsizetype offset) const
{
    struct Node { // 0 stands for none; node 0 is the root, node n is item n - 1
        std::size_t parent = 0, previous = 0, next = 0, first = 0, last = 0;
        qsizetype below = 0;
    };
    std::vector<Node> nodes(m_items.size() + 1);
    std::vector<std::size_t> open{0}; // the item at hand and those above it
    for (std::size_t n = 1; n < nodes.size(); ++n) {
        while (open.size() > 1 && m_items[open.back() - 1].level >= m_items[n - 1].level)
            open.pop_back();
        Node &parent = nodes[open.back()];
        nodes[n].parent = open.back();
        nodes[n].previous = parent.last;
        (parent.last == 0 ? parent.first : nodes[parent.last].next) = n;
        parent.last = n;
        for (const std::size_t above : open)
            ++nodes[above].below;
        open.push_back(n);
    }

    QByteArray out;
    for (std::size_t n = 0; n < nodes.size(); ++n) {
        const auto link = [&](const char *key, std::size_t to) {
            if (to > 0 || (n > 0 && qstrcmp(key, "/Parent ") == 0))
                out += key + reference(firstObject + static_cast<qsizetype>(to)) + '\n';
        };
        const Node &node = nodes[n];
        places.push_back(offset + out.size());
        out += QByteArray::number(firstObject + static_cast<qsizetype>(n)) + " 0 obj\n<<\n";
        if (n == 0) {
            out += "/Type /Outlines\n";
        } else {
            const Item &item = m_items[n - 1];
            out += "/Title " + textString(item.title) + "\n/Dest [" + pages[item.page] + " /XYZ null " +
                   QByteArray::number(item.y, 'f', 2) + " null]\n";
            link("/Parent ", node.parent);
        }
        link("/Prev ", node.previous);
        link("/Next ", node.next);
        link("/First ", node.first);
        link("/Last ", node.last);
        if (node.below > 0)
            out += "/Count " + QByteArray::number(node.below) + '\n';
        out += ">>\nendobj\n";
    }
    return out;
}

} // namespace kalvenor::print
