// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlage.h"

#include "platform/basic/codepage.h"
#include "platform/basic/error.h"
#include "platform/basic/sequential.h"
#include "platform/storage/replacement.h"
#include <limits>
#include <QFileInfo>
#include <utility>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using basic::Fault;

namespace {

/// Introductions hold pictures at times; nobody's template comes near this.
constexpr qint64 LargestFile = 256LL * 1024 * 1024;

QByteArray readWhole(const basic::NativePath &nativeFile)
{
    basic::Argument reason;
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

constexpr QByteArrayView Utf8Mark("\xEF\xBB\xBF", 3);

bool fitsAnsi(const QString &text)
{
    return basic::decodeAnsi(basic::encodeAnsi(text)) == text;
}

/// An introduction's bytes of what a UTF-8 file holds; what Windows-1252 lacks becomes RTF's own notation.
QByteArray rtfBytes(const QString &text)
{
    if (fitsAnsi(text))
        return basic::encodeAnsi(text);
    QByteArray bytes;
    for (const QChar c : text)
        bytes += fitsAnsi(c) ? basic::encodeAnsi(QStringView(&c, 1))
                             : "\\u" + QByteArray::number(static_cast<qint16>(c.unicode())) + '?';
    return bytes;
}

/// The values of a template one by one, each checked. `what` names the value in errors.
class VorlageReader {
public:
    explicit VorlageReader(const basic::NativePath &file) : VorlageReader(readWhole(file), file) {}

    bool atEnd() const { return m_reader.atEnd(); }
    QString databasePath();
    QString text(Fault what) { return decoded(bytes(what)); }
    QByteArray rtf(Fault what);
    qint32 number(Fault what, qint32 from, qint32 to);
    bool truth(Fault what);
    /// A person's number. It may end the file.
    qint32 counter();
    bool lastIsOpen() const { return m_lastIsOpen; }

private:
    VorlageReader(const QByteArray &content, const basic::NativePath &file)
        : m_isUtf8(content.startsWith(Utf8Mark)), m_reader(m_isUtf8 ? content.mid(Utf8Mark.size()) : content, file)
    {
        if (m_isUtf8 && !content.isValidUtf8())
            throw basic::Error(Fault::TemplateNotUtf8, {.file = file});
    }

    basic::SequentialItem next(Fault what, bool mayEndFile = false);
    QByteArray bytes(Fault what);
    QString decoded(const QByteArray &text) const
    {
        return m_isUtf8 ? QString::fromUtf8(text) : basic::decodeAnsi(text);
    }
    qint32 numberIn(const basic::SequentialItem &item, Fault what, qint32 from, qint32 to) const;
    [[noreturn]] void refuse(Fault fault, std::vector<basic::Argument> arguments = {}) const
    {
        throw basic::Error(fault, m_reader.place(), std::move(arguments));
    }

    bool m_isUtf8;
    basic::SequentialReader m_reader;
    bool m_lastIsOpen = false;
};

basic::SequentialItem VorlageReader::next(Fault what, bool mayEndFile)
{
    basic::SequentialItem item = m_reader.next();
    m_lastIsOpen = !item.ended;
    if (m_lastIsOpen && !mayEndFile)
        refuse(Fault::TemplateCut, {what});
    return item;
}

QString VorlageReader::databasePath()
{
    if (!m_reader.atEnd()) {
        const basic::SequentialItem item = next(Fault::WordFamily);
        if (item.quoted && !item.bytes.isEmpty())
            return decoded(item.bytes);
    }
    refuse(Fault::NoTemplate);
}

QByteArray VorlageReader::bytes(Fault what)
{
    const basic::SequentialItem item = next(what);
    if (!item.quoted)
        refuse(Fault::TemplateTextExpected, {what, shown(item)});
    return item.bytes;
}

QByteArray VorlageReader::rtf(Fault what)
{
    const QByteArray rtf = bytes(what);
    return m_isUtf8 ? rtfBytes(QString::fromUtf8(rtf)) : rtf;
}

qint32 VorlageReader::numberIn(const basic::SequentialItem &item, Fault what, qint32 from, qint32 to) const
{
    bool isNumber = false;
    const qint64 number = item.bytes.toLongLong(&isNumber, 10);
    if (item.quoted || !isNumber || number < from || number > to)
        refuse(Fault::TemplateNumberExpected, {what, from, to, shown(item)});
    return static_cast<qint32>(number);
}

qint32 VorlageReader::number(Fault what, qint32 from, qint32 to)
{
    return numberIn(next(what), what, from, to);
}

qint32 VorlageReader::counter()
{
    return numberIn(next(Fault::WordCounter, true), Fault::WordCounter, std::numeric_limits<qint32>::min(),
                    std::numeric_limits<qint32>::max());
}

bool VorlageReader::truth(Fault what)
{
    const basic::SequentialItem item = next(what, true); // it is whole, or no truth value
    const bool isTrue = item.bytes == "#TRUE#";
    if (item.quoted || (!isTrue && item.bytes != "#FALSE#"))
        refuse(Fault::TemplateTruthExpected, {what, shown(item)});
    return isTrue;
}

/// The first ten lines.
Vorlage readHead(VorlageReader &reader)
{
    Vorlage vorlage;
    vorlage.familienpfad = basic::WindowsPath(reader.databasePath());
    statistics::Statistik &statistik = vorlage.statistik;
    statistik.titel = reader.text(Fault::WordTitle);
    statistik.rtf = reader.rtf(Fault::WordIntroduction);
    statistik.grafiktyp =
        reader.number(Fault::WordChartType, 0, static_cast<qint32>(statistics::chartTypeEntries().size()) - 1);
    statistik.legende = reader.number(Fault::WordLegend, 0, 1) == 1;
    for (qint16 &box : statistik.geschlechtalter)
        box = static_cast<qint16>(reader.number(Fault::WordSexes, 0, 1));
    statistik.nachGeburtsjahr = reader.truth(Fault::WordByBirth);
    return vorlage;
}

/// Whatever the name: nothing but a template or an empty file gives way to one. What is damaged behind the first lines
/// still counts.
void checkReplaced(const basic::NativePath &nativeFile)
{
    if (QFileInfo(nativeFile).size() == 0) // as where there is none
        return;
    try {
        VorlageReader reader(nativeFile);
        readHead(reader);
    } catch (const basic::Error &error) {
        if (error.kind() != basic::ErrorKind::Damaged)
            throw;
        storage::checkTarget(nativeFile, storage::Origin::Named); // a database is told as one
        throw basic::Error(Fault::NoTemplateToReplace, {.file = nativeFile});
    }
}

} // namespace

Vorlage readVorlage(const basic::NativePath &nativeFile)
{
    VorlageReader reader(nativeFile);
    Vorlage vorlage = readHead(reader);
    while (!reader.atEnd())
        vorlage.counters.push_back(reader.counter());
    vorlage.lastIsOpen = !vorlage.counters.empty() && reader.lastIsOpen();
    return vorlage;
}

void writeVorlage(const basic::NativePath &nativeFile, const Vorlage &vorlage)
{
    const statistics::Statistik &statistik = vorlage.statistik;
    const bool ansi = fitsAnsi(vorlage.familienpfad.text()) && fitsAnsi(statistik.titel);
    const auto encoded = [ansi](const QString &text) {
        return ansi ? basic::encodeAnsi(text) : text.toUtf8();
    };
    basic::SequentialWriter writer;
    writer.writeText(encoded(vorlage.familienpfad.text()));
    writer.writeText(encoded(statistik.titel));
    writer.writeText(ansi ? statistik.rtf : basic::decodeAnsi(statistik.rtf).toUtf8());
    writer.writeNumber(statistik.grafiktyp);
    writer.writeNumber(statistik.legende ? 1 : 0);
    for (const qint16 box : statistik.geschlechtalter)
        writer.writeNumber(box);
    writer.writeTruth(statistik.nachGeburtsjahr);
    for (const qint32 counter : vorlage.counters)
        writer.writeNumber(counter);
    checkReplaced(nativeFile);
    basic::Argument reason;
    const QByteArray content = ansi ? writer.content() : Utf8Mark.toByteArray() + writer.content();
    if (!storage::replaceFileSafely(nativeFile, content, &reason))
        throw basic::Error(Fault::TemplateNotSaved, {.file = nativeFile}, {reason});
}

} // namespace kalvenor::selection
