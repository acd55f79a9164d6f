// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/richtext/rtfreader.h"

#include "platform/basic/codepage.h"
#include "platform/basic/error.h"
#include "platform/richtext/rtfcharacters.h"
#include "platform/richtext/rtfparser.h"
#include "platform/richtext/rtfwords.h"
#include <algorithm>
#include <QScopeGuard>
#include <QStringDecoder>
#include <QStringList>
#include <QTextCursor>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace kalvenor::richtext {

namespace {

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

/// Without a mark of UTF-8 and blanks before it, which some programs leave.
QByteArrayView fromItsBeginning(QByteArrayView text)
{
    if (text.startsWith("\xEF\xBB\xBF"))
        text = text.sliced(3);
    while (!text.isEmpty() && isBlank(text.front()))
        text = text.sliced(1);
    return text;
}

QString decodePlain(QByteArrayView text)
{
    if (const auto marked = QStringConverter::encodingForData(text))
        return QStringDecoder(*marked).decode(text);
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString decoded = utf8.decode(text);
    return utf8.hasError() ? basic::decodeAnsi(text) : decoded;
}

RtfResult readPlain(QByteArrayView text, QTextDocument &document, qint64 most)
{
    RtfResult result{.isRtf = false};
    result.tooLarge = text.size() > most;
    QString lines = decodePlain(text.first(std::min<qint64>(text.size(), most)));
    lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    QStringList shown = lines.split(u'\n');
    for (QString &line : shown)
        line = shownCharacters(line);
    document.setPlainText(shown.join(u'\n'));
    return result;
}

} // namespace

bool looksLikeRtf(QByteArrayView text)
{
    text = fromItsBeginning(text);
    return text.startsWith("{\\rtf") || text.startsWith("{{\\colortbl");
}

RtfResult readRtf(QByteArrayView rtf, QTextDocument &document, const RtfLimits &limits)
{
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    const auto restore = qScopeGuard([&document, undo] { document.setUndoRedoEnabled(undo); });
    document.clear();
    if (!looksLikeRtf(rtf))
        return readPlain(rtf, document, limits.characters);
    QTextCursor batch(&document);
    batch.beginEditBlock();
    const RtfResult result = RtfParser(fromItsBeginning(rtf), document, limits).parse();
    batch.endEditBlock();
    return result;
}

void readWholeRtf(QByteArrayView rtf, QTextDocument &document, const QString &file, const RtfLimits &limits)
{
    if (readRtf(rtf, document, limits).tooLarge)
        throw basic::Error(basic::Fault::IntroductionTooLong, {.file = file},
                           {limits.characters, limits.runs, limits.paragraphs});
}

QByteArray rtfBytes(const QString &rtf)
{
    const QByteArray ansi = basic::encodeAnsi(rtf);
    if (!looksLikeRtf(ansi))
        return rtf.toUtf8();
    QByteArray bytes;
    bytes.reserve(ansi.size());
    for (qsizetype i = 0; i < ansi.size(); ++i) {
        if (ansi[i] == '?' && rtf[i] != u'?')
            appendRtfCode(bytes, rtf[i].unicode());
        else
            bytes += ansi[i];
    }
    return bytes;
}

} // namespace kalvenor::richtext
