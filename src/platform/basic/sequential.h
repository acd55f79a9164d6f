// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include <QByteArray>
#include <QByteArrayView>
#include <QString>

// The sequential-write notation of the classic BASIC runtime (Write # and Input #), one value a record. Texts are bytes
// of Windows-1252.
namespace kalvenor::basic {

/// Writes one record a line, each ended by CR LF.
class SequentialWriter {
public:
    /// In double quotes, those inside doubled; line ends stay as they are.
    void writeText(QByteArrayView ansi);
    void writeNumber(qint64 number);
    void writeTruth(bool truth);
    const QByteArray &content() const { return m_content; }

private:
    QByteArray m_content;
};

/// One value as it was read.
struct SequentialItem {
    QByteArray bytes;    ///< without the quotes, doubled ones as one
    bool quoted = false; ///< a text; else a number, a truth value or nothing
    bool ended = false;  ///< a line end or comma came behind it, not the end of the file
};

/// Reads values one by one: blanks and tabs before a value are skipped, a quoted one runs to its closing quote over
/// line ends, another one to a comma or line end (CR LF, LF or CR). A Ctrl-Z at the end counts as a line end. Throws
/// Error(Damaged), naming file and line.
class SequentialReader {
public:
    /// `file` is named in errors.
    SequentialReader(QByteArray content, QString file);
    /// Nothing but blanks and line ends are left.
    bool atEnd() const;
    /// Throws past the end, where a closing quote is missing, and where something else follows one.
    SequentialItem next();
    /// Where the last value began: the file and the line (from 1) as an editor counts it.
    Place place() const;

private:
    char at(qsizetype position) const { return position < m_content.size() ? m_content[position] : '\0'; }
    bool isLineEnd(qsizetype position) const { return at(position) == '\r' || at(position) == '\n'; }
    void skipBlanks();
    void readQuoted(SequentialItem &item);
    void readPlain(SequentialItem &item);
    bool passSeparator();
    void countLines(qsizetype from, qsizetype to);

    QByteArray m_content;
    QString m_file;
    qsizetype m_position = 0;
    qint64 m_line = 1;     ///< of m_position
    qint64 m_itemLine = 1; ///< of the last value
};

} // namespace kalvenor::basic
