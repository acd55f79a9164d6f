// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>
#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

/// What a reader of files is given, in a folder of this process.
class WorkFile {
public:
    QString path() const { return m_folder.filePath(QStringLiteral("fuzzed")); }
    QByteArray bytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void fill(const std::uint8_t *data, std::size_t size) const
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size)) < 0)
            std::abort();
    }

private:
    QTemporaryDir m_folder;
};
