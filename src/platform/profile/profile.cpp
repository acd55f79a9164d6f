// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/profile/profile.h"

#include <algorithm>
#include <functional>

#include <QFileInfo>
#include <QStringView>

#include "platform/basic/codepage.h"
#include "platform/basic/error.h"
#include "platform/storage/replacement.h"
#include "platform/storage/writerlock.h"

using namespace Qt::StringLiterals;

namespace kalvenor::profile {

namespace {

constexpr QByteArrayView Utf16Mark("\xFF\xFE", 2);

// A file as units: the bytes themselves, or the UTF-16 units of a file that begins with their mark. Units that are not
// edited go back as they came. A UTF-8 mark is data: it makes the first line no header, as it does on Windows.
class Units {
public:
    explicit Units(const QByteArray &bytes = {}) : m_wide(bytes.startsWith(Utf16Mark))
    {
        if (!m_wide) {
            text = QString::fromLatin1(bytes);
            return;
        }
        for (qsizetype i = 2; i + 1 < bytes.size(); i += 2)
            text += QChar(static_cast<uchar>(bytes[i]), static_cast<uchar>(bytes[i + 1]));
        if (bytes.size() % 2 == 1)
            m_oddByte = bytes.right(1);
    }

    QByteArray toBytes() const
    {
        if (!m_wide)
            return text.toLatin1();
        QByteArray bytes = Utf16Mark.toByteArray();
        for (const QChar unit : text) {
            bytes += static_cast<char>(unit.cell());
            bytes += static_cast<char>(unit.row());
        }
        return bytes + m_oddByte;
    }

    QString fromAnsi(const QByteArray &ansi) const
    {
        return m_wide ? basic::decodeAnsi(ansi) : QString::fromLatin1(ansi);
    }
    QByteArray toAnsi(QStringView part) const { return m_wide ? basic::encodeAnsi(part) : part.toLatin1(); }

    QString text;

private:
    bool m_wide = false;
    QByteArray m_oddByte;
};

enum class LineKind { Other, Header, Key };

struct Line {
    LineKind kind = LineKind::Other;
    QStringView name;                 ///< of the section or key
    std::optional<QStringView> value; ///< nothing where the key has no "="
    qsizetype begin = 0;
    qsizetype valueBegin = 0; ///< behind "=", or behind the key where there is none
    qsizetype textEnd = 0;    ///< before the line end
    qsizetype next = 0;       ///< behind the line end
};

QStringView stripped(QStringView text)
{
    const auto isSpace = [](QChar c) {
        return c == u' ' || c == u'\t' || c == u'\v';
    };
    while (!text.isEmpty() && isSpace(text.front()))
        text = text.mid(1);
    while (!text.isEmpty() && isSpace(text.back()))
        text.chop(1);
    return text;
}

Line readLine(QStringView text, qsizetype begin)
{
    Line line;
    line.begin = begin;
    line.textEnd = begin;
    while (line.textEnd < text.size() && text[line.textEnd] != u'\n' && text[line.textEnd] != u'\r')
        ++line.textEnd;
    line.next = line.textEnd;
    if (line.next < text.size() && text[line.next] == u'\r')
        ++line.next;
    if (line.next < text.size() && text[line.next] == u'\n')
        ++line.next;

    const QStringView content = stripped(text.mid(begin, line.textEnd - begin));
    if (content.isEmpty() || content.startsWith(u';'))
        return line;
    if (content.startsWith(u'[')) {
        line.kind = LineKind::Header;
        const qsizetype close = content.indexOf(u']');
        line.name = stripped(close < 0 ? content.mid(1) : content.mid(1, close - 1));
        return line;
    }
    line.kind = LineKind::Key;
    const qsizetype equals = content.indexOf(u'=');
    const qsizetype contentBegin = content.begin() - text.begin();
    if (equals < 0) {
        line.name = content;
        line.valueBegin = contentBegin + content.size();
    } else {
        line.name = stripped(content.left(equals));
        line.value = stripped(content.mid(equals + 1));
        line.valueBegin = contentBegin + equals + 1;
    }
    return line;
}

bool sameName(QStringView a, QStringView b)
{
    const auto lower = [](QChar c) {
        return c >= u'A' && c <= u'Z' ? QChar(c.unicode() + 32) : c;
    };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&lower](QChar x, QChar y) { return lower(x) == lower(y); });
}

struct Found {
    std::optional<Line> header;
    std::optional<Line> key;
    qsizetype behindLastKey = 0; ///< or behind the header of a section without keys
    qsizetype sectionEnd = 0;
};

// The first section of this name, and in it the first key of this name.
Found find(QStringView text, const QString &section, const QString &key)
{
    Found found;
    for (qsizetype at = 0; at < text.size();) {
        const Line line = readLine(text, at);
        at = line.next;
        if (line.kind == LineKind::Header) {
            if (found.header)
                break;
            if (sameName(line.name, section)) {
                found.header = line;
                found.behindLastKey = line.next;
            }
        } else if (found.header && line.kind == LineKind::Key) {
            found.behindLastKey = line.next;
            if (!found.key && sameName(line.name, key))
                found.key = line;
        }
        found.sectionEnd = line.next;
    }
    return found;
}

QByteArray trimmedName(const QByteArray &name)
{
    qsizetype begin = 0;
    qsizetype end = name.size();
    while (begin < end && name[begin] == ' ')
        ++begin;
    while (end > begin && name[end - 1] == ' ')
        --end;
    return name.mid(begin, end - begin);
}

// The bytes of a file; `fault` says why there are none.
QByteArray readWhole(const QString &nativeFile, storage::FileFault &fault)
{
    const storage::File file = storage::File::open(basic::NativePath(nativeFile), storage::File::Mode::Read, nullptr);
    fault = file.fault();
    if (!file.isOpen())
        return {};
    const qint64 size = file.size();
    QByteArray bytes(qMax(size, 0), '\0');
    if (size < 0 ||
        !file.readAt(0, {reinterpret_cast<std::uint8_t *>(bytes.data()), static_cast<std::size_t>(bytes.size())})) {
        fault = storage::FileFault::Other;
        return {};
    }
    return bytes;
}

const QString LineEnd = u"\r\n"_s;

// `line` with its end as a line of its own at `at`, which is the begin of a line or the end of the text.
void insertLines(QString &text, qsizetype at, const QString &lines)
{
    const bool lineIsOpen = at > 0 && text[at - 1] != u'\n' && text[at - 1] != u'\r';
    text.insert(at, (lineIsOpen ? LineEnd : QString()) + lines + LineEnd);
}

// The file's content for a change; nothing where it cannot be read or its folder is missing.
std::optional<Units> contentToChange(const QString &nativeFile)
{
    storage::FileFault fault = storage::FileFault::None;
    Units file(readWhole(nativeFile, fault));
    if (fault == storage::FileFault::NotFound ? !QFileInfo(QFileInfo(nativeFile).absolutePath()).isDir()
                                              : fault != storage::FileFault::None)
        return std::nullopt;
    return file;
}

// Sets or deletes one value; false where there was nothing to delete.
bool change(Units &file, const QByteArray &section, const std::optional<QByteArray> &key,
            const std::optional<QByteArray> &value)
{
    const QString sectionName = file.fromAnsi(trimmedName(section));
    const QString keyName = file.fromAnsi(trimmedName(key.value_or(QByteArray())));
    const Found found = find(file.text, sectionName, keyName);
    if (key && value) {
        const QString newValue = file.fromAnsi(*value);
        const QString newLine = keyName + u'=' + newValue;
        if (found.key)
            file.text.replace(found.key->valueBegin, found.key->textEnd - found.key->valueBegin,
                              found.key->value ? newValue : u'=' + newValue);
        else if (found.header)
            insertLines(file.text, found.behindLastKey, newLine);
        else
            insertLines(file.text, file.text.size(), u'[' + sectionName + u']' + LineEnd + newLine);
    } else if (key && found.key) {
        file.text.remove(found.key->begin, found.key->next - found.key->begin);
    } else if (!key && found.header) {
        file.text.remove(found.header->begin, found.sectionEnd - found.header->begin);
    } else {
        return false;
    }
    return true;
}

// Reads the file, changes it and writes it anew where `edit` says that it changed something. No other of our programs
// does so meanwhile, or one would lose the other's keys.
bool changeFile(const QString &nativeFile, const std::function<bool(Units &)> &edit)
{
    if (nativeFile.isEmpty())
        return false;
    const storage::WriterLock lock(nativeFile);
    std::optional<Units> file = contentToChange(nativeFile);
    if (!lock.isHeld() || !file)
        return false;
    try {
        return !edit(*file) || storage::replaceFileSafely(basic::NativePath(nativeFile), file->toBytes(), nullptr,
                                                          storage::Origin::Settings);
    } catch (const basic::Error &) { // as the platform's functions, which know no reason
        return false;
    }
}

} // namespace

QByteArray getPrivateProfileString(const QByteArray &section, const QByteArray &key, const QByteArray &fallback,
                                   int size, const QString &nativeFile)
{
    QByteArray result = fallback;
    while (result.endsWith(' '))
        result.chop(1);

    storage::FileFault fault = storage::FileFault::None;
    const Units file(nativeFile.isEmpty() ? QByteArray() : readWhole(nativeFile, fault));
    const Found found = find(file.text, file.fromAnsi(trimmedName(section)), file.fromAnsi(trimmedName(key)));
    if (found.key && found.key->value) {
        QStringView value = *found.key->value;
        if (value.size() >= 2 && value.front() == value.back() && (value.front() == u'"' || value.front() == u'\''))
            value = value.mid(1, value.size() - 2);
        result = file.toAnsi(value);
    }
    return result.left(qMax(size - 1, 0));
}

bool writePrivateProfileString(const QByteArray &section, const std::optional<QByteArray> &key,
                               const std::optional<QByteArray> &value, const QString &nativeFile)
{
    return changeFile(nativeFile, [&](Units &file) { return change(file, section, key, value); });
}

bool writePrivateProfileStrings(std::span<const ProfileValue> values, const QString &nativeFile)
{
    return values.empty() || changeFile(nativeFile, [values](Units &file) {
               for (const ProfileValue &each : values)
                   change(file, each.section, each.key, each.value);
               return true;
           });
}

} // namespace kalvenor::profile
