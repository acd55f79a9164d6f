// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/print/richlines.h"

#include <algorithm>
#include <limits>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::print {
namespace {

constexpr double LeastLine = 720; // an indent leaves half an inch at least
constexpr double TabDistance = 720;
/// Characters that are laid out at once: the time Qt takes for a word wider than the line grows with the square of its
/// length, and that for changes of style with the square of their number.
constexpr qsizetype PieceLength = 4096;

/// Line ends as Qt's text layout knows them; other control characters than the tab as blanks.
QString layoutText(const QString &text)
{
    QString out = text;
    out.replace("\r\n"_L1, "\n"_L1);
    for (QChar &c : out) {
        if (c == u'\n' || c == u'\r')
            c = QChar::LineSeparator;
        else if (c < u' ' && c != u'\t')
            c = u' ';
    }
    return out;
}

class RichLines {
public:
    RichLines(const RichParagraph &paragraph, const std::vector<TextFace> &faces)
        : m_paragraph(paragraph), m_faces(faces)
    {
        for (const TextRun &run : paragraph.runs) {
            const QString text = layoutText(run.text);
            m_styles.insert(m_styles.end(), static_cast<std::size_t>(text.size()), run.style);
            m_text += text;
        }
        findTurns();
        m_isRightToLeft = m_text.isRightToLeft();
    }

    std::vector<Strip> set(double left, double right)
    {
        const double indent = std::clamp(static_cast<double>(m_paragraph.leftIndent), 0.0, right - left - LeastLine);
        const double start = std::clamp(indent - m_paragraph.hanging, 0.0, right - left - LeastLine);
        double first = start;
        if (!m_paragraph.bullet.text.isEmpty()) {
            const TextFace &face = faceOf(m_paragraph.bullet.style);
            m_bulletWidth = face.width(m_paragraph.bullet.text);
            first = std::min(std::max(indent, start + m_bulletWidth + face.width(u" ")), right - left - LeastLine);
        }
        m_bulletX = left + start;

        while (m_piece < m_text.size())
            m_piece = setPiece(left + first, left + indent, right);
        if (m_text.isEmpty() || m_text.back() == QChar::LineSeparator)
            setLine({}, m_text.size(), m_text.size());
        return std::move(m_strips);
    }

private:
    const TextFace &faceOf(StyleId style) const { return m_faces[static_cast<std::size_t>(style)]; }
    StyleId styleAt(qsizetype place) const { return m_styles[static_cast<std::size_t>(place)]; }
    StyleId firstStyle() const { return m_paragraph.runs.empty() ? 0 : m_paragraph.runs.front().style; }

    /// Which units are written from right to left; what has no direction goes with the text before it.
    void findTurns()
    {
        const auto isRight = [](QChar c) {
            return c.direction() == QChar::DirR || c.direction() == QChar::DirAL;
        };
        if (std::none_of(m_text.begin(), m_text.end(), isRight))
            return;
        bool right = false;
        for (const QChar c : m_text) {
            right = isRight(c) || (right && c.direction() != QChar::DirL && c.direction() != QChar::DirEN);
            m_right.push_back(right);
        }
    }

    bool turns() const { return !m_right.empty(); }

    /// Where the piece ends that begins at m_piece: behind a line end where there is one.
    qsizetype pieceEnd(qsizetype length) const
    {
        if (m_text.size() - m_piece <= length)
            return m_text.size();
        const QStringView piece = QStringView(m_text).sliced(m_piece, length);
        const qsizetype lineEnd = piece.lastIndexOf(QChar(QChar::LineSeparator));
        return m_piece + (lineEnd < 0 ? length : lineEnd + 1);
    }

    /// Lays out a piece and sets its whole lines. Returns where the next begins: with the line that was not whole.
    qsizetype setPiece(double first, double next, double right)
    {
        for (qsizetype length = PieceLength;; length *= 2) { // until it holds a whole line
            const qsizetype end = pieceEnd(length);
            const bool endsLine = end == m_text.size() || m_text[end - 1] == QChar::LineSeparator;
            QTextLayout layout(m_text.sliced(m_piece, end - m_piece), faceOf(firstStyle()).font());
            layout.setFormats(formats(end));
            layout.setTextOption(option());
            layout.beginLayout();
            for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
                const double x = m_strips.empty() && line.lineNumber() == 0 ? first : next;
                line.setLineWidth(right - x);
                line.setPosition(QPointF(x, 0));
            }
            layout.endLayout();
            const int whole = layout.lineCount() - (endsLine ? 0 : 1);
            for (int i = 0; i < whole; ++i) {
                const QTextLine line = layout.lineAt(i);
                if (line.textLength() > 0) // there is one behind a line end
                    setLine(line, m_piece + line.textStart(), m_piece + line.textStart() + line.textLength());
            }
            if (endsLine)
                return end;
            if (whole > 0)
                return m_piece + layout.lineAt(whole).textStart();
        }
    }

    QList<QTextLayout::FormatRange> formats(qsizetype end) const
    {
        QList<QTextLayout::FormatRange> ranges;
        qsizetype start = m_piece;
        for (qsizetype i = start + 1; i <= end; ++i) {
            if (i < end && styleAt(i) == styleAt(start))
                continue;
            QTextLayout::FormatRange range;
            range.start = static_cast<int>(start - m_piece);
            range.length = static_cast<int>(i - start);
            range.format.setFont(faceOf(styleAt(start)).font());
            ranges << range;
            start = i;
        }
        return ranges;
    }

    QTextOption option() const
    {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        constexpr Qt::Alignment alignments[]{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignJustify};
        option.setAlignment(alignments[static_cast<int>(m_paragraph.alignment)]);
        option.setTextDirection(m_isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        option.setTabStopDistance(TabDistance);
        if (m_paragraph.hanging > 0)
            option.setTabArray({static_cast<qreal>(m_paragraph.hanging)});
        return option;
    }

    void setLine(const QTextLine &line, qsizetype start, qsizetype end)
    {
        Strip &strip = m_strips.emplace_back();
        const bool goesOn = end < m_text.size() && m_text[end - 1] != QChar::LineSeparator;
        while (end > start && (m_text[end - 1] == u' ' || m_text[end - 1] == QChar::LineSeparator))
            --end;

        double ascent = 0;
        double below = 0;
        const auto measure = [&](StyleId style) {
            const TextFace &face = faceOf(style);
            ascent = std::max(ascent, face.ascent());
            below = std::max(below, face.lineHeight() - face.ascent());
        };
        for (qsizetype i = start; i < end; ++i) {
            if (i == start || styleAt(i) != styleAt(i - 1))
                measure(styleAt(i));
        }
        if (end == start)
            measure(start < m_text.size() ? styleAt(start) : m_text.isEmpty() ? firstStyle() : m_styles.back());
        const bool hasBullet = m_strips.size() == 1 && !m_paragraph.bullet.text.isEmpty();
        if (hasBullet)
            measure(m_paragraph.bullet.style);
        strip.height = ascent + below;
        if (hasBullet)
            strip.texts.push_back({static_cast<float>(m_bulletX), static_cast<float>(ascent),
                                   static_cast<float>(m_bulletWidth), m_paragraph.bullet.style,
                                   m_paragraph.bullet.text});

        const bool spread = m_paragraph.alignment == Alignment::Justified && goesOn;
        for (qsizetype from = start; from < end;) {
            qsizetype to = from + 1;
            // A spread line goes word by word; each takes its blank along, so that it can be searched and copied.
            while (to < end && styleAt(to) == styleAt(from) && m_text[to] != u'\t' && m_text[from] != u'\t' &&
                   !(spread && m_text[to - 1] == u' ' && m_text[to] != u' ') &&
                   !(turns() && m_right[static_cast<std::size_t>(to)] != m_right[static_cast<std::size_t>(to - 1)]))
                ++to;
            setText(strip, line, from, to, ascent);
            from = to;
        }
    }

    /// Left and right edge of a piece in one direction.
    std::pair<double, double> extent(const QTextLine &line, qsizetype from, qsizetype to) const
    {
        double left = line.cursorToX(static_cast<int>(from - m_piece));
        double right = line.cursorToX(static_cast<int>(to - m_piece));
        if (!turns())
            return std::minmax(left, right);
        // Where directions meet a place of the text is two places on the line: the glyphs know.
        left = std::numeric_limits<double>::max();
        right = 0;
        for (const QGlyphRun &run : line.glyphRuns(static_cast<int>(from - m_piece), static_cast<int>(to - from))) {
            const QList<QPointF> positions = run.positions();
            const QList<QPointF> advances = run.rawFont().advancesForGlyphIndexes(run.glyphIndexes());
            for (qsizetype i = 0; i < positions.size(); ++i) {
                left = std::min(left, positions[i].x());
                right = std::max(right, positions[i].x() + advances[i].x());
            }
        }
        return {std::min(left, right), right};
    }

    void setText(Strip &strip, const QTextLine &line, qsizetype from, qsizetype to, double ascent) const
    {
        const auto [x, end] = extent(line, from, to);
        const double width = end - x;
        const StyleId style = styleAt(from);
        if (faceOf(style).style().background.isValid())
            strip.grounds.push_back({QRectF(x, 0, width, strip.height), style});
        if (m_text[from] != u'\t')
            strip.texts.push_back({static_cast<float>(x), static_cast<float>(ascent), static_cast<float>(width), style,
                                   m_text.mid(from, to - from)});
    }

    const RichParagraph &m_paragraph;
    const std::vector<TextFace> &m_faces;
    QString m_text;
    std::vector<StyleId> m_styles; ///< of each unit of the text
    std::vector<bool> m_right;     ///< of each unit; empty where none is written from right to left
    bool m_isRightToLeft = false;  ///< the text as a whole
    qsizetype m_piece = 0;         ///< where what is laid out at once begins
    double m_bulletX = 0;
    double m_bulletWidth = 0;
    std::vector<Strip> m_strips;
};

} // namespace

std::vector<Strip> richLines(const RichParagraph &paragraph, const std::vector<TextFace> &faces, double left,
                             double right)
{
    return RichLines(paragraph, faces).set(left, right);
}

} // namespace kalvenor::print
