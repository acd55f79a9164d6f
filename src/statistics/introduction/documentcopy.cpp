// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/introduction/documentcopy.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QFontDatabase>
#include <QPointer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

namespace {

constexpr double PointsPerPixel = 0.75;
constexpr double SmallestSize = 6;
constexpr double LargestSize = 72;

/// A document that loads no pictures and no styles.
class UnlinkedDocument : public QTextDocument {
public:
    using QTextDocument::QTextDocument;

protected:
    QVariant loadResource(int, const QUrl &) override { return {}; }
};

bool readsOnPaper(const QColor &color)
{
    return color.isValid() && color.alpha() == 255 && qGray(color.rgb()) < 200;
}

/// What pages give to all their text: nearly black, nearly grey.
bool isNearlyBlack(const QColor &color)
{
    return color.saturationF() < 0.25F && qGray(color.rgb()) < 100;
}

double sizeOf(const QTextCharFormat &format, double usual)
{
    // Qt's steps for <small>, <big> and headings, from -2.
    static constexpr std::array steps{0.7, 0.85, 1.0, 1.2, 1.5, 2.0, 2.4};
    double points = format.fontPointSize();
    if (points <= 0 && format.hasProperty(QTextFormat::FontPixelSize))
        points = format.intProperty(QTextFormat::FontPixelSize) * PointsPerPixel;
    if (points <= 0 && format.hasProperty(QTextFormat::FontSizeAdjustment)) {
        const int step = std::clamp(format.intProperty(QTextFormat::FontSizeAdjustment) + 2, 0, 6);
        points = usual * steps[static_cast<std::size_t>(step)];
    }
    return points <= 0 ? 0 : std::clamp(std::round(points * 2) / 2, SmallestSize, LargestSize);
}

QTextCharFormat plained(const QTextCharFormat &format, double usualSize)
{
    QTextCharFormat plain;
    if (format.fontWeight() >= QFont::DemiBold)
        plain.setFontWeight(QFont::Bold);
    if (format.fontItalic())
        plain.setFontItalic(true);
    if (format.fontStrikeOut())
        plain.setFontStrikeOut(true);
    if (format.fontUnderline() && !format.isAnchor())
        plain.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    const QColor color = format.foreground().color();
    if (format.hasProperty(QTextFormat::ForegroundBrush) && !format.isAnchor() && readsOnPaper(color) &&
        !isNearlyBlack(color))
        plain.setForeground(color);
    for (const QString &family : format.fontFamilies().toStringList()) {
        if (QFontDatabase::hasFamily(family)) {
            plain.setFontFamilies({family});
            break;
        }
    }
    if (const double size = sizeOf(format, usualSize); size > 0)
        plain.setFontPointSize(size);
    return plain;
}

/// Blocks are written one behind the other, as lists and alignments want it.
class BlockWriter {
public:
    explicit BlockWriter(const QTextCursor &cursor)
        : m_cursor(cursor), m_intoEmpty(cursor.block().length() == 1 && cursor.currentList() == nullptr)
    {
    }

    void startBlock(const QTextBlockFormat &format, int listLevel)
    {
        if (m_started)
            m_cursor.insertBlock(format, QTextCharFormat());
        else if (m_intoEmpty)
            m_cursor.setBlockFormat(format);
        const bool own = m_started || m_intoEmpty;
        m_started = true;
        if (own)
            joinList(listLevel);
    }
    void endBlock(const QTextCharFormat &format)
    {
        if (m_cursor.block().length() == 1)
            m_cursor.setBlockCharFormat(format);
    }
    void text(const QString &text, const QTextCharFormat &format) { m_cursor.insertText(text, format); }

private:
    void joinList(int level)
    {
        if (level == 0) {
            m_list = nullptr;
        } else if (m_list != nullptr && m_list->format().indent() == level) {
            m_list->add(m_cursor.block());
        } else {
            QTextListFormat format;
            format.setStyle(QTextListFormat::ListDisc);
            format.setIndent(level);
            m_list = m_cursor.createList(format);
        }
    }

    QTextCursor m_cursor;
    bool m_intoEmpty;
    bool m_started = false;
    QPointer<QTextList> m_list;
};

int levelOf(const QTextBlock &block)
{
    const QTextList *list = block.textList();
    return list == nullptr ? 0 : std::clamp(list->format().indent(), 1, 9);
}

bool isBullet(QTextListFormat::Style style)
{
    return style == QTextListFormat::ListDisc || style == QTextListFormat::ListCircle ||
           style == QTextListFormat::ListSquare;
}

QTextBlockFormat withoutList(QTextBlockFormat format)
{
    format.setObjectIndex(-1);
    return format;
}

void copyPlained(QTextDocument &from, QTextDocument &to)
{
    BlockWriter writer{QTextCursor(&to)};
    const double usual = to.defaultFont().pointSizeF();
    const QTextTable *table = nullptr;
    int row = -1;
    for (QTextBlock block = from.begin(); block.isValid(); block = block.next()) {
        const QTextCursor at(block);
        const QTextTable *inTable = at.currentTable();
        const int inRow = inTable == nullptr ? -1 : inTable->cellAt(at).row();
        if (inTable != nullptr && inTable == table && inRow == row) {
            writer.text(u"\t"_s, {});
        } else {
            const bool numbered = block.textList() != nullptr && !isBullet(block.textList()->format().style());
            QTextBlockFormat format;
            const Qt::Alignment alignment = block.blockFormat().alignment() & Qt::AlignHorizontal_Mask;
            if (alignment & (Qt::AlignHCenter | Qt::AlignRight | Qt::AlignJustify))
                format.setAlignment(alignment);
            writer.startBlock(format, numbered ? 0 : levelOf(block));
            if (numbered)
                writer.text(block.textList()->itemText(block) + u'\t', {});
        }
        table = inTable;
        row = inRow;
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            QString text = part.fragment().text();
            text.remove(QChar::ObjectReplacementCharacter);
            writer.text(text, plained(part.fragment().charFormat(), usual));
        }
    }
}

} // namespace

void readPlainedHtml(const QString &html, QTextDocument &document)
{
    UnlinkedDocument page;
    page.setHtml(html);
    document.clear();
    copyPlained(page, document);
}

void insertDocument(QTextCursor cursor, const QTextDocument &document)
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    BlockWriter writer(cursor);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        writer.startBlock(withoutList(block.blockFormat()), levelOf(block));
        for (auto part = block.begin(); !part.atEnd(); ++part)
            writer.text(part.fragment().text(), part.fragment().charFormat());
        writer.endBlock(block.charFormat());
    }
    cursor.endEditBlock();
}

} // namespace kalvenor::statistics
