// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/introduction/texteditor.h"

#include "host/host.h"
#include "language/forms/widgetform.h"
#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include "platform/richtext/rtfreader.h"
#include "platform/richtext/rtfwriter.h"
#include "platform/storage/replacement.h"
#include "statistics/introduction/documentcopy.h"
#include "statistics/introduction/textfield.h"
#include "statistics/introduction/texttools.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QStringConverter>
#include <QTextBlock>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

namespace {

bool isText(const QByteArray &content)
{
    return richtext::looksLikeRtf(content) || !content.contains('\0') ||
           QStringConverter::encodingForData(content).has_value();
}

} // namespace

TextEditor::TextEditor(language::Sprachmodul &texts, host::Host &host, QWidget *parent)
    : QWidget(parent), m_texts(texts), m_host(host), m_field(new TextField(this))
{
    setObjectName(u"Einleitung"_s);
    m_field->setObjectName(u"RTFtextfeld0"_s);
    language::setDesignText(m_field, Text::IntroductionHint);
    m_field->setAccessibleName(m_texts.text(Text::IntroductionName));
    auto *tools = new TextTools(*m_field, this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(tools);
    layout->addWidget(m_field, 1);
    connect(tools, &TextTools::openWanted, this, &TextEditor::openText);
    connect(tools, &TextTools::saveWanted, this, &TextEditor::saveText);
    connect(m_field, &QTextEdit::textChanged, this, [this] {
        if (!m_filling)
            Q_EMIT changed();
    });
    setRtf({});
}

QWidget &TextEditor::entry() const
{
    return *m_field;
}

QByteArray TextEditor::rtf() const
{
    return m_field->document()->isModified() ? richtext::writeRtf(*m_field->document()) : m_original;
}

void TextEditor::setRtf(QByteArrayView rtf)
{
    const QScopedValueRollback quiet(m_filling, true);
    m_original = rtf.toByteArray();
    const richtext::RtfResult result = richtext::readRtf(m_original, *m_field->document());
    m_field->moveCursor(QTextCursor::Start);
    if (m_field->document()->isEmpty())
        m_field->setCurrentCharFormat(m_field->document()->firstBlock().charFormat());
    m_field->document()->clearUndoRedoStacks();
    m_field->document()->setModified(false);
    m_flagged = false;
    if (!result.everythingShown())
        sayWhatIsMissing(result, {});
}

bool TextEditor::isModified() const
{
    return m_flagged || m_field->document()->isModified();
}

void TextEditor::setModified(bool modified)
{
    m_flagged = modified;
    if (!modified && m_field->document()->isModified()) {
        m_original = rtf();
        m_field->document()->setModified(false);
    }
}

bool TextEditor::isEmpty() const
{
    return m_field->toPlainText().trimmed().isEmpty();
}

const QTextDocument &TextEditor::document() const
{
    return *m_field->document();
}

void TextEditor::openText()
{
    const QString file = m_host.desktop().openFileName(
        this, {.title = m_texts.text(Text::OpenText),
               .filters = m_texts.text(Text::RtfTexts) + u";;"_s + m_texts.text(Text::AllFiles)});
    QByteArray content;
    if (file.isEmpty() || !readFile(file, content))
        return;
    QTextDocument opened;
    opened.setDefaultFont(m_field->document()->defaultFont());
    const richtext::RtfResult result = richtext::readRtf(content, opened);
    {
        const QScopedValueRollback quiet(m_filling, true);
        QTextCursor cursor(m_field->document());
        cursor.beginEditBlock();
        cursor.select(QTextCursor::Document);
        cursor.removeSelectedText();
        cursor.setBlockFormat({});
        insertDocument(cursor, opened);
        cursor.endEditBlock();
        m_field->moveCursor(QTextCursor::Start);
        m_original = content;
        m_field->document()->setModified(false);
        m_flagged = true;
    }
    Q_EMIT changed();
    sayWhatIsMissing(result, QFileInfo(file).fileName());
}

bool TextEditor::readFile(const QString &file, QByteArray &content)
{
    const QString shown = QDir::toNativeSeparators(file);
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        showError(m_texts.text(Text::TextNotRead).arg(shown, source.errorString()));
        return false;
    }
    content = source.read(richtext::LargestRtfFile + 1);
    if (source.error() != QFileDevice::NoError) {
        showError(m_texts.text(Text::TextNotRead).arg(shown, source.errorString()));
        return false;
    }
    if (content.size() > richtext::LargestRtfFile) {
        showError(m_texts.text(Text::TextTooLarge).arg(shown));
        return false;
    }
    if (!isText(content)) {
        showError(m_texts.text(Text::FileIsNoText).arg(shown));
        return false;
    }
    return true;
}

void TextEditor::saveText()
{
    const QString file = m_host.desktop().saveFileName(
        this, {.title = m_texts.text(Text::SaveTextAs), .filters = m_texts.text(Text::RtfTexts), .suffix = u"rtf"_s});
    if (file.isEmpty())
        return;
    basic::Argument why;
    // Plain text or nothing, not edited, is not yet the RTF that the file's name promises.
    const QByteArray content = richtext::looksLikeRtf(rtf()) ? rtf() : richtext::writeRtf(*m_field->document());
    bool saved = false;
    try {
        saved = storage::replaceFileSafely(basic::NativePath(file), content, &why);
    } catch (const basic::Error &error) {
        why = language::errorSentence(m_texts, error);
    }
    if (saved)
        Q_EMIT said(m_texts.text(Text::TextSaved).arg(QDir::toNativeSeparators(file)));
    else
        showError(
            m_texts.text(Text::TextNotSaved).arg(QDir::toNativeSeparators(file), language::inWords(m_texts, why)));
}

void TextEditor::showError(const QString &message)
{
    m_host.desktop().messageBox(message, desktop::MessageCritical, m_texts.text(Text::Error));
}

void TextEditor::sayWhatIsMissing(const richtext::RtfResult &result, const QString &name)
{
    if (!result.isRtf && !name.isEmpty()) {
        Q_EMIT said(m_texts.text(Text::ReadAsPlainText).arg(name));
        return;
    }
    QStringList parts;
    if (result.pictures)
        parts << m_texts.text(Text::NotShownPictures);
    if (result.tables)
        parts << m_texts.text(Text::NotShownFrames);
    if (result.others)
        parts << m_texts.text(Text::NotShownNotes);
    if (result.damaged)
        parts << m_texts.text(Text::NotShownDamage);
    if (result.tooLarge)
        parts << m_texts.text(Text::NotShownEnd);
    if (!parts.isEmpty())
        Q_EMIT said(m_texts.text(Text::NotShown).arg(parts.join(u", "_s)));
}

} // namespace kalvenor::statistics
