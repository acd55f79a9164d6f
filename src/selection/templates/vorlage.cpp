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

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

namespace {

/// Introductions hold pictures at times; nobody's template comes near this.
constexpr qint64 LargestFile = 256LL * 1024 * 1024;

QByteArray readWhole(const QString &nativeFile)
{
    QString reason;
    const storage::File file = storage::File::open(nativeFile, storage::File::Mode::Read, &reason);
    if (!file.isOpen())
        throw basic::Error(file.fault() == storage::FileFault::NotFound ? basic::ErrorKind::FileNotFound
                                                                        : basic::ErrorKind::FileUnreadable,
                           nativeFile, u"The template cannot be opened: %1."_s.arg(reason));
    const qint64 size = file.size();
    if (size > LargestFile)
        throw basic::Error(basic::ErrorKind::Damaged, nativeFile,
                           u"This is not a selection template: it is %1 MB large."_s.arg(size / 1024 / 1024));
    QByteArray content(size > 0 ? size : 0, Qt::Uninitialized);
    if (size < 0 || !file.readAt(0, {reinterpret_cast<std::uint8_t *>(content.data()), std::size_t(size)}))
        throw basic::Error(basic::ErrorKind::FileUnreadable, nativeFile,
                           u"The template cannot be read: %1."_s.arg(file.errorText()));
    return content;
}

/// A value as an error quotes it.
QString quoted(const basic::SequentialItem &item)
{
    constexpr qsizetype Shown = 30;
    QString text = basic::decodeAnsi(item.bytes.left(Shown));
    for (QChar &c : text) {
        if (!c.isPrint())
            c = u'?';
    }
    return u"\"%1%2\""_s.arg(text, item.bytes.size() > Shown ? u"..."_s : QString());
}

/// The values of a template one by one, each checked. `what` names the value in errors.
class VorlageReader {
public:
    explicit VorlageReader(const QString &file) : m_reader(readWhole(file), file) {}

    bool atEnd() const { return m_reader.atEnd(); }
    QString databasePath();
    QByteArray text(const char *what);
    qint32 number(const char *what, qint32 from, qint32 to);
    bool truth(const char *what);

private:
    basic::SequentialItem next(const char *what);
    [[noreturn]] void refuse(const QString &text) const
    {
        throw basic::Error(basic::ErrorKind::Damaged, m_reader.place(), text);
    }

    basic::SequentialReader m_reader;
};

basic::SequentialItem VorlageReader::next(const char *what)
{
    basic::SequentialItem item = m_reader.next();
    if (!item.ended)
        refuse(u"The file ends in the middle of this line (%1); it was cut, and cannot be opened. Use "
               "another copy of the template or save it again."_s.arg(QLatin1String(what)));
    return item;
}

QString VorlageReader::databasePath()
{
    if (!m_reader.atEnd()) {
        const basic::SequentialItem item = next("family database");
        if (item.quoted && !item.bytes.isEmpty())
            return basic::decodeAnsi(item.bytes);
    }
    refuse(u"This is not a selection template: its first line must be the path of a family database in "
           "double quotes."_s);
}

QByteArray VorlageReader::text(const char *what)
{
    const basic::SequentialItem item = next(what);
    if (!item.quoted)
        refuse(u"Here should be the %1, a text in double quotes, but there is %2. The template is "
               "damaged; use another copy of it or save it again."_s.arg(QLatin1String(what), quoted(item)));
    return item.bytes;
}

qint32 VorlageReader::number(const char *what, qint32 from, qint32 to)
{
    const basic::SequentialItem item = next(what);
    bool isNumber = false;
    const qint64 number = item.bytes.toLongLong(&isNumber, 10);
    if (item.quoted || !isNumber || number < from || number > to)
        refuse(u"Here should be the %1, a number from %2 to %3, but there is %4. The template is "
               "damaged; use another copy of it or save it again."_s.arg(QLatin1String(what))
                   .arg(from)
                   .arg(to)
                   .arg(quoted(item)));
    return static_cast<qint32>(number);
}

bool VorlageReader::truth(const char *what)
{
    const basic::SequentialItem item = next(what);
    const bool isTrue = item.bytes == "#TRUE#";
    if (item.quoted || (!isTrue && item.bytes != "#FALSE#"))
        refuse(u"Here should be the %1, #TRUE# or #FALSE#, but there is %2. The template is damaged; "
               "use another copy of it or save it again."_s.arg(QLatin1String(what), quoted(item)));
    return isTrue;
}

/// The text in Windows-1252. Throws Error(Refused) where characters would be lost.
QByteArray ansi(const QString &file, const QString &text, const char *what, const char *advice)
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
    throw basic::Error(basic::ErrorKind::Refused, file,
                       u"The template was not saved: the %1 holds characters that a template cannot keep (%2). "
                       "%3"_s.arg(QLatin1String(what), lost.join(u' '), QLatin1String(advice)));
}

} // namespace

Vorlage readVorlage(const QString &nativeFile)
{
    VorlageReader reader(nativeFile);
    Vorlage vorlage;
    vorlage.familienpfad = reader.databasePath();
    statistics::Statistik &statistik = vorlage.statistik;
    statistik.titel = basic::decodeAnsi(reader.text("title"));
    statistik.rtf = reader.text("introduction");
    statistik.grafiktyp =
        reader.number("type of the chart", 0, static_cast<qint32>(statistics::chartTypeEntries().size()) - 1);
    statistik.legende = reader.number("switch of the legend", 0, 1) == 1;
    for (qint16 &box : statistik.geschlechtalter)
        box = static_cast<qint16>(reader.number("choice of men or women", 0, 1));
    statistik.nachGeburtsjahr = reader.truth("choice of the year of birth");
    while (!reader.atEnd())
        vorlage.counters.push_back(reader.number("number of a person", std::numeric_limits<qint32>::min(),
                                                 std::numeric_limits<qint32>::max()));
    return vorlage;
}

void writeVorlage(const QString &nativeFile, const Vorlage &vorlage)
{
    basic::SequentialWriter writer;
    writer.writeText(
        ansi(nativeFile, vorlage.familienpfad, "path of the family database", "Rename the database or its folder."));
    const statistics::Statistik &statistik = vorlage.statistik;
    writer.writeText(ansi(nativeFile, statistik.titel, "title", "Change the title."));
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
        throw basic::Error(basic::ErrorKind::WriteFailed, nativeFile, u"The template was not saved: %1."_s.arg(reason));
}

} // namespace kalvenor::selection
