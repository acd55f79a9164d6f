// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/format.h"
#include "platform/jet/reader/textcodec.h"
#include <memory>
#include <optional>
#include <QByteArray>
#include <QDeadlineTimer>
#include <QString>
#include <span>

namespace kalvenor::storage {
class File;
}

namespace kalvenor::jet {

/// What tells whether a file was changed by another program: size, time and the 512 commit-counter bytes.
struct Stamp {
    qint64 size = -1;
    qint64 modifiedNs = 0;
    QByteArray counters;
    bool operator==(const Stamp &) const = default;
};

/// A whole database file in memory, its pages decoded. Every access is checked; the bytes never change but for mark
/// bits that were written to the file as well.
class Image {
public:
    /// Reads the file (native path) and reads it again, a few times, while its stamp moves.
    /// Throws Error: FileNotFound, FileUnreadable, NotADatabase, Damaged, ChangedElsewhere.
    static std::shared_ptr<Image> load(const QString &file);
    /// A file's bytes that are already in memory; `name` stands in error texts. Throws as load.
    static std::shared_ptr<Image> fromBytes(const QString &name, std::span<const std::uint8_t> bytes);
    /// The stamp the file has now; throws FileNotFound or FileUnreadable.
    static Stamp stampOf(const QString &file);
    /// The same of an open file; `name` stands in error texts.
    static Stamp stampOf(const QString &name, const storage::File &open);

    const QString &file() const { return m_file; }
    Version version() const { return m_version; }
    std::uint32_t pageSize() const { return m_pageSize; }
    std::uint32_t pageCount() const { return m_pageCount; }
    int codePage() const { return m_codePage; }
    /// The decoded page, or an empty span for a page the file does not have.
    std::span<const std::uint8_t> page(std::uint32_t number) const
    {
        if (number >= m_pageCount)
            return {};
        return {m_bytes.get() + std::size_t{number} * m_pageSize, m_pageSize};
    }
    /// Stored text in this file's version and code page.
    void decodeText(std::span<const std::uint8_t> bytes, QString &into) const
    {
        if (m_version == Version::Jet4)
            decodeText4(bytes, into);
        else
            decodeText3(bytes, m_characters, into);
    }

    /// What a byte stands for in a text of one byte a character, as byteText() gives it.
    const ByteCharacters &byteCharacters() const { return m_characters; }
    /// Stored text that is one byte a character, as long as no zero byte comes (in Jet 4, from there on it is not).
    /// Nothing for other text.
    std::optional<std::span<const std::uint8_t>> byteText(std::span<const std::uint8_t> bytes) const
    {
        if (m_version == Version::Jet3)
            return bytes;
        return isCompressed4(bytes) ? std::optional(bytes.subspan(2)) : std::nullopt;
    }

    const Stamp &stamp() const { return m_stamp; }
    /// The stamp right after writing to the file, or none: it is then stale.
    void setStamp(const Stamp &stamp);
    /// True where the file no longer has this stamp. Two changes within one tick of the clock of files leave the same
    /// time: a stamp that was taken right after a change is believed only once the file's bytes have been compared with
    /// the image, which the first call after that tick does. Throws as stampOf.
    bool isStale();
    std::uint32_t encodingKey() const { return m_encodingKey; }
    /// Takes over one byte that was written to the file. The plain byte, and its place in the file.
    void patch(std::size_t offset, std::uint8_t plain)
    {
        Q_ASSERT(offset < std::size_t{m_pageCount} * m_pageSize);
        m_bytes[offset] = plain;
    }

private:
    void takeBytes(std::unique_ptr<std::uint8_t[]> bytes, std::size_t size);
    bool isHeldBy(const storage::File &file) const;

    QString m_file;
    Version m_version = Version::Jet4;
    std::uint32_t m_pageSize = 4096;
    std::uint32_t m_pageCount = 0;
    int m_codePage = 1252;
    std::uint32_t m_encodingKey = 0; ///< 0: plain pages
    Stamp m_stamp;
    std::optional<QDeadlineTimer> m_doubtful; ///< since when other changes have another time; none: no doubt is left
    ByteCharacters m_characters{};
    std::unique_ptr<std::uint8_t[]> m_bytes; ///< as many as the file has; not a vector, which would zero them first
};

} // namespace kalvenor::jet
