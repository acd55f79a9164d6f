// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/pagelayout.h"

#include "platform/basic/error.h"
#include "platform/print/blocksetter.h"
#include "platform/print/pagegeometry.h"

#include <algorithm>
#include <map>
#include <tuple>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

constexpr qint64 BlocksAStep = 512; // between two reports of progress

/// Puts a header or footer on a page. Parts that would meet are elided: to a third of the line each, or where the
/// middle is empty, the longer one to what the shorter leaves.
void setRunningText(Page &page, const RunningText &running, const TextFace &face, int number, double left, double right,
                    double baseline)
{
    std::array<QString, 3> parts = runningTextParts(running.text, number);
    std::array<double, 3> widths{};
    const double line = right - left;
    const auto fit = [&](std::size_t part, double room) {
        parts[part] = face.elided(parts[part], room);
        widths[part] = face.width(parts[part]);
    };
    const auto measure = [&](double room) {
        for (std::size_t i = 0; i < 3; ++i)
            fit(i, room);
    };
    measure(line);
    const double outer = std::max(widths[0], widths[2]);
    const bool meet = widths[1] > 0 ? outer + widths[1] / 2 > line / 2 && outer > 0 : widths[0] + widths[2] > line;
    if (meet && widths[1] > 0) {
        measure(line / 3 - CellPadding);
    } else if (meet) {
        const std::size_t shorter = widths[0] < widths[2] ? 0 : 2;
        fit(shorter, line / 2 - CellPadding);
        fit(2 - shorter, line - widths[shorter] - 2 * CellPadding);
    }
    const std::array<double, 3> places{left, left + (line - widths[1]) / 2, right - widths[2]};
    for (std::size_t i = 0; i < 3; ++i) {
        if (!parts[i].isEmpty())
            page.texts.push_back({static_cast<float>(places[i]), static_cast<float>(baseline),
                                  static_cast<float>(widths[i]), running.style, parts[i]});
    }
}

} // namespace

PageLayout::PageLayout(const PrintDocument &document, const basic::Progress &progress)
    : m_language(document.language), m_paper(print::paperSize(document.page))
{
    std::map<std::tuple<QString, double, bool, bool>, std::size_t> fonts;
    for (const TextStyle &style : document.styles()) {
        const auto [font, isNew] =
            fonts.try_emplace({style.family, style.pointSize, style.bold, style.italic}, m_faces.size());
        m_faces.push_back(isNew ? TextFace(style) : TextFace(m_faces[font->second], style));
    }
    const TextFace &headerFace = m_faces.at(static_cast<std::size_t>(document.header.style));
    const TextFace &footerFace = m_faces.at(static_cast<std::size_t>(document.footer.style));
    const QRectF area = textArea(document, headerFace.lineHeight(), footerFace.lineHeight());

    PageFlow flow(area.top(), area.bottom());
    BlockSetter setter(m_faces, area.left(), area.right(), flow);
    const auto total = static_cast<qint64>(document.blocks().size());
    qint64 done = 0;
    for (const Block &block : document.blocks()) {
        std::visit(setter, block);
        if (progress && (++done % BlocksAStep == 0 || done == total) && !progress(done, total))
            throw basic::Error(basic::Fault::Stopped);
    }
    m_pages = flow.take();

    int number = 0;
    for (Page &page : m_pages) {
        ++number;
        setRunningText(page, document.header, headerFace, number, area.left(), area.right(),
                       document.page.headerDistance + headerFace.ascent());
        setRunningText(page, document.footer, footerFace, number, area.left(), area.right(),
                       m_paper.height() - document.page.footerDistance - footerFace.descent());
    }
}

} // namespace kalvenor::print
