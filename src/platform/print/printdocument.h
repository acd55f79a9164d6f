// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <QColor>
#include <QHash>
#include <QImage>
#include <QString>
#include <QStringView>
#include <variant>
#include <vector>

// What is to be printed, as a sequence of blocks that knows nothing of pages. All lengths are twips (1/1440 inch).
namespace kalvenor::print {

using namespace Qt::StringLiterals;

using Twips = int;

/// Beyond about 820 points Qt's font metrics overflow.
constexpr double LargestPointSize = 800;

/// How a text looks. An invalid colour means black text and no background.
struct TextStyle {
    QString family = u"Arial"_s;
    double pointSize = 10;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    QColor color = {};
    QColor background = {};

    bool operator==(const TextStyle &) const = default;
};

std::size_t qHash(const TextStyle &style, std::size_t seed);

/// Names a style of one document.
using StyleId = int;

enum class Alignment { Left, Centre, Right, Justified };

/// What happens to a text that is wider than its column.
enum class Overflow {
    Wrap,  ///< goes on in a further line, at a blank where there is one, else between two characters
    Elide, ///< stays one line, ends in "…"
};

struct Column {
    Alignment alignment = Alignment::Left;
    /// 0 takes an equal share of what the other columns leave of the line.
    Twips width = 0;
    Overflow overflow = Overflow::Wrap;

    bool operator==(const Column &) const = default;
};

/// The outline of a document has this many levels.
constexpr int DeepestOutlineLevel = 3;

struct Cell {
    QString text = {};
    StyleId style = 0;
    std::optional<Alignment> alignment = {}; ///< instead of the column's
    int outlineLevel = 0; ///< from 1: its text stands in the outline; in a table's heading it does not
};

/// Line ends inside the text begin new lines.
struct Paragraph {
    QString text = {};
    StyleId style = 0;
    Alignment alignment = Alignment::Left;
    Twips spaceBefore = 0; ///< left out at the top of a page
    Twips spaceAfter = 0;
    bool keepWithNext = false; ///< a heading: never the last line of a page
    int outlineLevel = 0;      ///< from 1: a heading, its text stands in the outline
};

/// A stretch of text in one style.
struct TextRun {
    QString text = {};
    StyleId style = 0;

    bool operator==(const TextRun &) const = default;
};

/// A paragraph of several styles; each line is as high as its tallest. Line ends inside a run begin new lines, tabs
/// go to the next stop, one every half inch from the left margin. Background colours lie behind the words alone.
struct RichParagraph {
    std::vector<TextRun> runs = {};
    Alignment alignment = Alignment::Left;
    Twips leftIndent = 0;
    Twips hanging = 0;     ///< the first line begins so much further left, negative: further right
    TextRun bullet = {};   ///< stands where the first line begins; the line itself then begins at the left indent
    Twips spaceBefore = 0; ///< left out at the top of a page
    Twips spaceAfter = 0;
    bool keepWithNext = false;
    int outlineLevel = 0;

    bool operator==(const RichParagraph &) const = default;
};

/// A picture stands on one page. It is made smaller in proportion where it is wider than the line or higher than a
/// page.
struct Picture {
    QImage image = {};
    Twips width = 0;
    Twips height = 0;
    Alignment alignment = Alignment::Left; ///< Justified stands left
    QString alternativeText = {};
    /// Where the composer writes a picture file of its own for HTML, and the tag with it: the HTML writer then leaves
    /// this picture out. Empty: it is put into the page.
    QString fileName = {};
    Twips spaceBefore = 0; ///< left out at the top of a page
    Twips spaceAfter = 0;
    bool keepWithNext = false;
};

/// Begins a table. The rows that follow belong to it, until a paragraph, a picture or another table. Columns wider in
/// sum than the line are narrowed in proportion. The heading rows stand here and again on each page the table goes on
/// to.
struct TableStart {
    std::vector<Column> columns;
    std::vector<std::vector<Cell>> heading = {};
    Twips rowSpacing = 0; ///< between two rows
};

/// Missing cells are empty; more cells than columns are an error. A row is kept on one page where it fits on one.
struct TableRow {
    std::vector<Cell> cells;
    bool keepWithNext = false;
};

struct PageBreak {};

using Block = std::variant<Paragraph, TableStart, TableRow, PageBreak, RichParagraph, Picture>;

/// The paper stands upright in these sizes; landscape turns it. Margins are those of the page as it is read.
struct PageSetup {
    Twips paperWidth = 11906; // A4
    Twips paperHeight = 16838;
    bool landscape = false;
    Twips left = 1440;
    Twips top = 1440;
    Twips right = 1080;
    Twips bottom = 1080;
    /// From the paper's edge to the header's top and the footer's bottom. Where they reach into the text, it gives way.
    Twips headerDistance = 567;
    Twips footerDistance = 567;

    bool operator==(const PageSetup &) const = default;
};

/// "left|centre|right"; "%d" is the page number.
struct RunningText {
    QString text = {};
    StyleId style = 0;
};

/// The three parts of a running text for one page. Bars behind the second belong to the right part.
std::array<QString, 3> runningTextParts(QStringView text, int pageNumber);

class PrintDocument {
public:
    QString title;              ///< in the file's metadata
    QString language = u"de"_s; ///< of its texts, "de" or "en"
    PageSetup page;
    RunningText header;
    RunningText footer;

    /// Equal styles share an id. Style 0 is always there: the default TextStyle.
    /// Throws Error(InvalidProcedureCall) for a size of 0 or less or above largestPointSize.
    StyleId addStyle(const TextStyle &style);
    const std::vector<TextStyle> &styles() const { return m_styles; }

    /// Throws Error(InvalidProcedureCall) where a block cannot stand: a row outside a table, too many cells, a style
    /// or outline level that is none, a negative length, a picture without content.
    void add(Block block);
    const std::vector<Block> &blocks() const { return m_blocks; }
    /// The same with its styles and running texts, but empty.
    PrintDocument withoutBlocks() const;

private:
    void checkCells(const std::vector<Cell> &cells, std::size_t columns) const;
    void check(const Paragraph &paragraph) const;
    void check(const RichParagraph &paragraph) const;
    void check(const Picture &picture) const;
    void check(const TableStart &table) const;
    void check(const TableRow &row) const;
    void check(const PageBreak &) const {}
    void checkStyle(StyleId style) const;

    std::vector<TextStyle> m_styles{TextStyle()};
    QHash<TextStyle, StyleId> m_styleIds{{TextStyle(), 0}};
    std::vector<Block> m_blocks;
    std::size_t m_columns = 0; ///< of the open table, 0 outside
};

} // namespace kalvenor::print
