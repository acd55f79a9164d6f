// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/introduction/texteditor.h"

#include "host/host.h"
#include "language/forms/form.h"
#include "language/forms/widgetform.h"
#include "platform/richtext/rtfreader.h"
#include "platform/richtext/rtfwriter.h"
#include "platform/storage/file.h"
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

namespace {

constexpr qint64 LargestFile = 64LL * 1024 * 1024;

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
    language::setDesignText(m_field, u"20723Schreiben Sie hier, was vor der Statistik stehen soll."_s);
    m_field->setAccessibleName(text(20722, "Einleitender Text des Berichts"));
    auto *tools = new TextTools(*m_field, this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(tools);
    layout->addWidget(m_field, 1);
    setFocusProxy(m_field);
    connect(tools, &TextTools::openWanted, this, &TextEditor::openText);
    connect(tools, &TextTools::saveWanted, this, &TextEditor::saveText);
    connect(m_field, &QTextEdit::textChanged, this, [this] {
        if (!m_filling)
            Q_EMIT changed();
    });
    setRtf({});
}

QString TextEditor::text(qint16 id, const char *german) const
{
    return language::shownText(m_texts, id, QString::fromUtf8(german));
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
        this, {.title = text(20719, "Text öffnen"),
               .filters = text(20721, "RTF-Texte (*.rtf)") + u";;"_s + text(20726, "Alle Dateien (*)")});
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
        showError(text(20734, "Die Datei %1 kann nicht gelesen werden: %2").arg(shown, source.errorString()));
        return false;
    }
    content = source.read(LargestFile + 1);
    if (source.error() != QFileDevice::NoError) {
        showError(text(20734, "Die Datei %1 kann nicht gelesen werden: %2").arg(shown, source.errorString()));
        return false;
    }
    if (content.size() > LargestFile) {
        showError(text(20736, "Die Datei %1 ist zu groß. Ein Text kann bis zu 64 MB haben.").arg(shown));
        return false;
    }
    if (!isText(content)) {
        showError(text(20735, "Die Datei %1 ist kein Text.").arg(shown));
        return false;
    }
    return true;
}

void TextEditor::saveText()
{
    const QString file = m_host.desktop().saveFileName(this, {.title = text(20720, "Text speichern unter"),
                                                              .filters = text(20721, "RTF-Texte (*.rtf)"),
                                                              .suffix = u"rtf"_s});
    if (file.isEmpty())
        return;
    QString why;
    // Plain text or nothing, not edited, is not yet the RTF that the file's name promises.
    const QByteArray content = richtext::looksLikeRtf(rtf()) ? rtf() : richtext::writeRtf(*m_field->document());
    if (storage::replaceFileSafely(file, content, &why))
        Q_EMIT said(text(20738, "Der Text wurde in %1 gespeichert.").arg(QDir::toNativeSeparators(file)));
    else
        showError(
            text(20737, "Der Text konnte nicht in %1 gespeichert werden: %2").arg(QDir::toNativeSeparators(file), why));
}

void TextEditor::showError(const QString &message)
{
    m_host.desktop().messageBox(message, desktop::MessageCritical, text(21020, "Fehler"));
}

void TextEditor::sayWhatIsMissing(const richtext::RtfResult &result, const QString &name)
{
    if (!result.isRtf && !name.isEmpty()) {
        Q_EMIT said(text(20733, "%1 wurde als einfacher Text ohne Formate gelesen.").arg(name));
        return;
    }
    QStringList parts;
    if (result.pictures)
        parts << text(20728, "Bilder");
    if (result.tables)
        parts << text(20729, "Rahmen von Tabellen");
    if (result.others)
        parts << text(20730, "Kopfzeilen, Fußnoten oder verborgener Text");
    if (result.damaged)
        parts << text(20731, "beschädigte Stellen");
    if (result.tooLarge)
        parts << text(20732, "das Ende des sehr langen Textes");
    if (!parts.isEmpty())
        Q_EMIT said(text(20727, "Nicht gezeigt: %1. Solange Sie den Text nicht ändern, bleibt er, wie er ist.")
                        .arg(parts.join(u", "_s)));
}

} // namespace kalvenor::statistics
