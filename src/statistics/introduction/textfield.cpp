// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/introduction/textfield.h"

#include "platform/richtext/rtfreader.h"
#include "platform/richtext/rtfwriter.h"
#include "statistics/introduction/documentcopy.h"
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextList>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

namespace {

/// How clipboards name rich text; the last one is Windows' own.
const QStringList RichTextTypes{u"text/rtf"_s, u"application/rtf"_s, u"text/richtext"_s,
                                u"application/x-qt-windows-mime;value=\"Rich Text Format\""_s};

QByteArray richText(const QMimeData &source)
{
    for (const QString &type : RichTextTypes) {
        if (QByteArray rtf = source.data(type); richtext::looksLikeRtf(rtf))
            return rtf;
    }
    return {};
}

bool namesFiles(const QMimeData &source)
{
    return source.hasUrls() && source.urls().constFirst().isLocalFile();
}

QList<QTextBlock> selectedBlocks(const QTextCursor &cursor)
{
    QList<QTextBlock> blocks;
    for (QTextBlock block = cursor.document()->findBlock(cursor.selectionStart());
         block.isValid() && (blocks.isEmpty() || block.position() < cursor.selectionEnd()); block = block.next())
        blocks.append(block);
    return blocks;
}

QPalette paperPalette(QPalette palette)
{
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::PlaceholderText, QColor(0x70, 0x70, 0x70));
    return palette;
}

} // namespace

TextField::TextField(QWidget *parent) : QTextEdit(parent)
{
    setPalette(paperPalette(palette()));
    setFont(QFont(u"Arial"_s, 10)); // the report's own
    document()->setDocumentMargin(8);
    setAutoFormatting(QTextEdit::AutoNone);
    setTabChangesFocus(true); // the window is walked through by keys
}

void TextField::pastePlain()
{
    textCursor().insertText(QApplication::clipboard()->text());
    ensureCursorVisible();
}

void TextField::setBullets(bool on)
{
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    if (on) {
        QTextListFormat format;
        format.setStyle(QTextListFormat::ListDisc);
        cursor.createList(format);
    } else {
        for (const QTextBlock &block : selectedBlocks(cursor)) {
            if (QTextList *list = block.textList(); list != nullptr) {
                list->remove(block);
                QTextCursor at(block);
                QTextBlockFormat format = at.blockFormat();
                format.setIndent(0);
                at.setBlockFormat(format);
            }
        }
    }
    cursor.endEditBlock();
}

void TextField::removeFormats()
{
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection()) {
        cursor.movePosition(QTextCursor::StartOfBlock);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    }
    cursor.beginEditBlock();
    cursor.setCharFormat({});
    for (const QTextBlock &block : selectedBlocks(cursor)) {
        QTextBlockFormat format;
        format.setObjectIndex(block.blockFormat().objectIndex());
        QTextCursor(block).setBlockFormat(format);
    }
    cursor.endEditBlock();
    setCurrentCharFormat({});
}

bool TextField::canInsertFromMimeData(const QMimeData *source) const
{
    return !richText(*source).isEmpty() || (!namesFiles(*source) && (source->hasHtml() || source->hasText()));
}

void TextField::insertFromMimeData(const QMimeData *source)
{
    if (!canInsertFromMimeData(source))
        return;
    const QByteArray rtf = richText(*source);
    if (rtf.isEmpty() && !source->hasHtml()) {
        textCursor().insertText(source->text());
    } else {
        QTextDocument part;
        part.setDefaultFont(document()->defaultFont());
        if (rtf.isEmpty())
            readPlainedHtml(source->html(), part);
        else
            richtext::readRtf(rtf, part);
        insertDocument(textCursor(), part);
    }
    ensureCursorVisible();
}

QMimeData *TextField::createMimeDataFromSelection() const
{
    QMimeData *made = QTextEdit::createMimeDataFromSelection();
    QTextDocument part;
    part.setDefaultFont(document()->defaultFont());
    QTextCursor(&part).insertFragment(textCursor().selection());
    made->setData(RichTextTypes.constFirst(), richtext::writeRtf(part));
    return made;
}

QAction *TextField::actionFor(const QKeyEvent &event) const
{
    const QKeySequence keys(event.keyCombination());
    if (m_menu != nullptr) {
        for (QAction *action : m_menu->actions()) {
            if (action->shortcuts().contains(keys))
                return action;
        }
    }
    return nullptr;
}

bool TextField::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && actionFor(*static_cast<QKeyEvent *>(event)) != nullptr) {
        event->accept();
        return true;
    }
    return QTextEdit::event(event);
}

void TextField::keyPressEvent(QKeyEvent *event)
{
    if (QAction *action = actionFor(*event); action != nullptr) {
        action->trigger();
        return;
    }
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QTextBlock block = textCursor().block();
    if (isReturn && block.textList() != nullptr && block.length() == 1 && !textCursor().hasSelection()) {
        setBullets(false); // an empty item ends the list
        return;
    }
    QTextEdit::keyPressEvent(event);
}

void TextField::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_menu != nullptr)
        m_menu->popup(event->globalPos());
}

} // namespace kalvenor::statistics
