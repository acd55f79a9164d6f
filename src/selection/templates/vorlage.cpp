// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlage.h"

#include "platform/basic/codepage.h"
#include "platform/basic/error.h"
#include "platform/basic/sequential.h"
#include "platform/storage/replacement.h"
#include <limits>
#include <QList>
#include <QStringList>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using basic::Fault;

namespace {

/// Introductions hold pictures at times; nobody's template comes near this.
constexpr qint64 LargestFile = 256LL * 1024 * 1024;

QByteArray readWhole(const QString &nativeFile)
{
    QString reason;
    const storage::File file = storage::File::open(nativeFile, storage::File::Mode::Read, &reason);
    if (!file.isOpen())
        throw basic::Error(file.fault() == storage::FileFault::NotFound ? Fault::TemplateMissing
                                                                        : Fault::TemplateUnreadable,
                           {.file = nativeFile}, {reason});
    const qint64 size = file.size();
    if (size > LargestFile)
        throw basic::Error(Fault::TemplateTooLarge, {.file = nativeFile}, {size / 1024 / 1024});
    QByteArray content(size > 0 ? size : 0, Qt::Uninitialized);
    if (size < 0 || !file.readAt(0, {reinterpret_cast<std::uint8_t *>(content.data()), std::size_t(size)}))
        throw basic::Error(Fault::TemplateUnreadable, {.file = nativeFile}, {file.errorText()});
    return content;
}

/// A value as an error quotes it.
QString shown(const basic::SequentialItem &item)
{
    constexpr qsizetype Longest = 30;
    QString text = basic::decodeAnsi(item.bytes.left(Longest));
    for (QChar &c : text) {
        if (!c.isPrint())
            c = u'?';
    }
    return item.bytes.size() > Longest ? text + u"..."_s : text;
}

/// The values of a template one by one, each checked. `what` names the value in errors.
class VorlageReader {
public:
    explicit VorlageReader(const QString &file) : m_reader(readWhole(file), file) {}

    bool atEnd() const { return m_reader.atEnd(); }
    QString databasePath();
    QByteArray text(Fault what);
    qint32 number(Fault what, qint32 from, qint32 to);
    bool truth(Fault what);

private:
    basic::SequentialItem next(Fault what);
    [[noreturn]] void refuse(Fault fault, std::vector<basic::Argument> arguments = {}) const
    {
        throw basic::Error(fault, m_reader.place(), std::move(arguments));
    }

    basic::SequentialReader m_reader;
};

basic::SequentialItem VorlageReader::next(Fault what)
{
    basic::SequentialItem item = m_reader.next();
    if (!item.ended)
        refuse(Fault::TemplateCut, {what});
    return item;
}

QString VorlageReader::databasePath()
{
    if (!m_reader.atEnd()) {
        const basic::SequentialItem item = next(Fault::WordFamily);
        if (item.quoted && !item.bytes.isEmpty())
            return basic::pathFromStored(basic::decodeAnsi(item.bytes));
    }
    refuse(Fault::NoTemplate);
}

QByteArray VorlageReader::text(Fault what)
{
    const basic::SequentialItem item = next(what);
    if (!item.quoted)
        refuse(Fault::TemplateTextExpected, {what, shown(item)});
    return item.bytes;
}

qint32 VorlageReader::number(Fault what, qint32 from, qint32 to)
{
    const basic::SequentialItem item = next(what);
    bool isNumber = false;
    const qint64 number = item.bytes.toLongLong(&isNumber, 10);
    if (item.quoted || !isNumber || number < from || number > to)
        refuse(Fault::TemplateNumberExpected, {what, from, to, shown(item)});
    return static_cast<qint32>(number);
}

bool VorlageReader::truth(Fault what)
{
    const basic::SequentialItem item = next(what);
    const bool isTrue = item.bytes == "#TRUE#";
    if (item.quoted || (!isTrue && item.bytes != "#FALSE#"))
        refuse(Fault::TemplateTruthExpected, {what, shown(item)});
    return isTrue;
}

/// The text in Windows-1252. Throws Error(Refused) where characters would be lost.
QByteArray ansi(const QString &file, const QString &text, Fault what, Fault advice)
{
    QByteArray bytes = basic::encodeAnsi(text);
    if (basic::decodeAnsi(bytes) == text)
        return bytes;
    QStringList lost;
    for (const char32_t code : text.toUcs4()) {
        const QString character = QString::fromUcs4(&code, 1);
        if (basic::decodeAnsi(basic::encodeAnsi(character)) != character && !lost.contains(character))
            lost << character;
    }
    throw basic::Error(Fault::TemplateCharacters, {.file = file}, {what, lost.join(u' ')}).with(advice);
}

} // namespace

Vorlage readVorlage(const QString &nativeFile)
{
    VorlageReader reader(nativeFile);
    Vorlage vorlage;
    vorlage.familienpfad = reader.databasePath();
    statistics::Statistik &statistik = vorlage.statistik;
    statistik.titel = basic::decodeAnsi(reader.text(Fault::WordTitle));
    statistik.rtf = reader.text(Fault::WordIntroduction);
    statistik.grafiktyp =
        reader.number(Fault::WordChartType, 0, static_cast<qint32>(statistics::chartTypeEntries().size()) - 1);
    statistik.legende = reader.number(Fault::WordLegend, 0, 1) == 1;
    for (qint16 &box : statistik.geschlechtalter)
        box = static_cast<qint16>(reader.number(Fault::WordSexes, 0, 1));
    statistik.nachGeburtsjahr = reader.truth(Fault::WordByBirth);
    while (!reader.atEnd())
        vorlage.counters.push_back(
            reader.number(Fault::WordCounter, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()));
    return vorlage;
}

void writeVorlage(const QString &nativeFile, const Vorlage &vorlage)
{
    basic::SequentialWriter writer;
    writer.writeText(basic::encodeAnsi(basic::storedPath(vorlage.familienpfad)));
    const statistics::Statistik &statistik = vorlage.statistik;
    writer.writeText(ansi(nativeFile, statistik.titel, Fault::WordTitle, Fault::ChangeTitle));
    writer.writeText(statistik.rtf);
    writer.writeNumber(statistik.grafiktyp);
    writer.writeNumber(statistik.legende ? 1 : 0);
    for (const qint16 box : statistik.geschlechtalter)
        writer.writeNumber(box);
    writer.writeTruth(statistik.nachGeburtsjahr);
    for (const qint32 counter : vorlage.counters)
        writer.writeNumber(counter);
    QString reason;
    if (!storage::replaceFileSafely(nativeFile, writer.content(), &reason))
        throw basic::Error(Fault::TemplateNotSaved, {.file = nativeFile}, {reason});
}

} // namespace kalvenor::selection
