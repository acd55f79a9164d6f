// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

namespace kalvenor::app {

enum class Format { Text, Tsv, Json };

/// A JSON string. Names come from a foreign file, so control characters and lone surrogates occur.
QByteArray jsonText(QStringView text);

/// Writes a list of persons to stdout as lines, tab-separated values or a JSON array, without keeping it.
class ListOutput {
public:
    /// `textKey` names the text in JSON objects: {"counter":1,"line":"…"}.
    ListOutput(Format format, const char *textKey);
    void add(qint32 counter, QStringView text);
    void finish();

private:
    void writeOut();
    Format m_format;
    QByteArray m_textKey;
    QByteArray m_buffer;
    bool m_first = true;
};

} // namespace kalvenor::app
