// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/pagesearch.h"

#include <algorithm>
#include <cmath>
#include <QElapsedTimer>
#include <utility>

namespace kalvenor::settings {

namespace {

/// Texts of one line that stand so close go on without a blank: a style changed inside a word.
constexpr float Touching = 20;

bool goesOn(const print::PlacedText &before, const print::PlacedText &after)
{
    return before.baseline == after.baseline && std::abs(before.x + before.width - after.x) < Touching;
}

/// Calls `visit(text, start)` for each text of the page with its place in the page's text, which is appended to
/// `whole`.
template <typename Visit>
void join(const print::Page &page, QString &whole, Visit visit)
{
    const print::PlacedText *before = nullptr;
    for (const print::PlacedText &text : page.texts) {
        if (before != nullptr && !goesOn(*before, text) && !whole.endsWith(u' '))
            whole += u' ';
        visit(text, whole.size());
        whole += text.text;
        before = &text;
    }
}

} // namespace

void PageSearch::begin(std::shared_ptr<const print::PageLayout> layout, const QString &needle)
{
    m_layout = std::move(layout);
    m_needle = needle.simplified();
    m_nextPage = 0;
    m_matches.clear();
}

bool PageSearch::isFinished() const
{
    return !m_layout || m_needle.isEmpty() || m_nextPage >= m_layout->pages().size();
}

bool PageSearch::advance(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    while (!isFinished()) {
        m_text.truncate(0);
        join(m_layout->pages()[m_nextPage], m_text, [](const print::PlacedText &, qsizetype) {});
        const auto page = static_cast<int>(m_nextPage++);
        const auto length = static_cast<int>(m_needle.size());
        for (qsizetype at = 0; (at = m_text.indexOf(m_needle, at, Qt::CaseInsensitive)) >= 0; at += length)
            m_matches.push_back({page, static_cast<int>(at), length});
        if (clock.elapsed() >= milliseconds)
            break;
    }
    return isFinished();
}

std::size_t PageSearch::firstFrom(int page) const
{
    const auto found = std::lower_bound(m_matches.begin(), m_matches.end(), page,
                                        [](const Match &match, int wanted) { return match.page < wanted; });
    return static_cast<std::size_t>(found - m_matches.begin());
}

std::vector<PageSearch::Area> PageSearch::areas(int page) const
{
    std::vector<Area> found;
    std::size_t number = firstFrom(page);
    QString whole;
    join(m_layout->pages()[static_cast<std::size_t>(page)], whole, [&](const print::PlacedText &text, qsizetype start) {
        const print::TextFace &face = m_layout->faces()[static_cast<std::size_t>(text.style)];
        const QStringView shown = text.text;
        for (; number < m_matches.size() && m_matches[number].page == page; ++number) {
            const Match &match = m_matches[number];
            const qsizetype from = std::max<qsizetype>(match.start - start, 0);
            const qsizetype end = match.start + match.length - start;
            const qsizetype to = std::min(end, shown.size());
            if (from < to) {
                const double left = static_cast<double>(text.x) + face.width(shown.left(from));
                const double top = static_cast<double>(text.baseline) - face.ascent();
                found.push_back({number, QRectF(left, top, face.width(shown.mid(from, to - from)),
                                                face.ascent() + face.descent())});
            }
            if (end > shown.size())
                return; // goes on, or begins, in a text to come
        }
    });
    return found;
}

} // namespace kalvenor::settings
