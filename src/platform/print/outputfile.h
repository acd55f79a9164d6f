// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include "platform/storage/replacement.h"
#include <QIODevice>
#include <QString>

namespace kalvenor::print {

/// A file that is written beside its place and takes it at the end, so that an old one stays whole until then and no
/// half one is ever left: neither by an error nor by an object that goes without commit().
/// A failed write is remembered, since not every library that writes to a device looks at what it answers.
class OutputFile : public QIODevice {
public:
    /// `kind` names the file in messages: "PDF". Throws Error(WriteFailed) where the place cannot be written.
    OutputFile(const QString &nativePath, const QString &kind);

    /// Throws Error(WriteFailed) where a write has failed, for want of room most likely.
    void check() const;
    /// Throws Error(Cancelled).
    [[noreturn]] void cancel() const;
    /// Ends the writing. Throws Error(WriteFailed).
    void commit();

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override;

private:
    [[noreturn]] void fail(basic::Fault fault, std::vector<basic::Argument> arguments) const;

    QString m_kind;
    QString m_path;
    storage::Replacement m_file;
};

} // namespace kalvenor::print
