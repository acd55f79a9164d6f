// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/reader/image.h"

#include "platform/basic/error.h"
#include "platform/jet/reader/cursor.h"
#include "platform/jet/reader/datapage.h"
#include "platform/jet/reader/encoding.h"
#include "platform/storage/file.h"
#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <new>
#include <numeric>
#include <QDateTime>
#include <thread>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

constexpr std::size_t HeaderRoom = 4096; ///< holds the header page of either version
constexpr std::size_t CountersSize = 512;
constexpr qint64 LargestFile = qint64{2} << 30;
constexpr int Attempts = 5;
constexpr std::chrono::milliseconds FirstPause{5}; ///< doubled each time; all together nobody notices
/// Ticks of the clock of files: milliseconds, or two seconds where the file system keeps no fractions.
constexpr std::chrono::milliseconds FineTick{100};
constexpr std::chrono::milliseconds CoarseTick{2100};
constexpr qint64 Young = 3'000'000'000; ///< ns; a file changed before that is not in its tick any more
constexpr std::size_t CompareAtOnce = 1 << 20;

bool isZero(std::span<const std::uint8_t> bytes)
{
    return std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte == 0; });
}

std::uint32_t pageSizeOf(std::span<const std::uint8_t> head)
{
    return head.size() > 0x14 && head[0x14] == 0 ? 2048 : 4096;
}

storage::File openForReading(const QString &file)
{
    basic::Argument reason;
    storage::File opened = storage::File::open(basic::NativePath(file), storage::File::Mode::Read, &reason);
    if (opened.isOpen())
        return opened;
    if (opened.fault() == storage::FileFault::NotFound)
        throw basic::Error(basic::Fault::FileMissing, {.file = file});
    throw basic::Error(basic::Fault::NotRead, {.file = file}, {reason});
}

[[noreturn]] void notReadable(const QString &name, const storage::File &file)
{
    throw basic::Error(basic::Fault::NotRead, {.file = name}, {file.errorText()});
}

QDeadlineTimer endOfTick(const Stamp &stamp)
{
    return QDeadlineTimer(stamp.modifiedNs % 1'000'000'000 == 0 ? CoarseTick : FineTick);
}

void checkHeader(const QString &name, std::span<const std::uint8_t> head)
{
    if (head.size() < HeaderRoom)
        throw basic::Error(basic::Fault::FileTooShort, {.file = name}, {head.size()});
    const auto startsWith = [head](std::size_t at, const char *text) {
        return std::memcmp(&head[at], text, std::strlen(text) + 1) == 0;
    };
    const bool newerName = startsWith(4, "Standard ACE DB");
    if (head[0] != 0 || head[1] != 1 || head[2] != 0 || head[3] != 0 ||
        (!newerName && !startsWith(4, "Standard Jet DB")))
        throw basic::Error(basic::Fault::OtherKindOfFile, {.file = name});
    if (newerName || head[0x14] >= 2)
        throw basic::Error(basic::Fault::AceFormat, {.file = name}, {head[0x14]});
}

} // namespace

Stamp Image::stampOf(const QString &name, const storage::File &file)
{
    Stamp stamp;
    const storage::FileState now = file.state();
    stamp.size = now.size;
    stamp.modifiedNs = now.modifiedNs;
    if (stamp.size < 0)
        notReadable(name, file);
    std::array<std::uint8_t, HeaderRoom> head{};
    const auto there = std::span(head).first(static_cast<std::size_t>(std::min<qint64>(stamp.size, HeaderRoom)));
    if (!file.readAt(0, there))
        notReadable(name, file);
    const std::size_t countersAt = pageSizeOf(there) - CountersSize;
    if (there.size() >= countersAt + CountersSize)
        stamp.counters = QByteArray(reinterpret_cast<const char *>(&there[countersAt]), CountersSize);
    return stamp;
}

Stamp Image::stampOf(const QString &file)
{
    return stampOf(file, openForReading(file));
}

std::shared_ptr<Image> Image::load(const QString &name)
{
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        if (attempt > 0)
            std::this_thread::sleep_for(FirstPause * (1 << (attempt - 1)));
        const storage::File file = openForReading(name);
        const Stamp before = stampOf(name, file);
        if (before.size > LargestFile)
            throw basic::Error(basic::Fault::LargerThanJet, {.file = name});
        std::array<std::uint8_t, HeaderRoom> head{};
        const auto there = std::span(head).first(static_cast<std::size_t>(std::min<qint64>(before.size, HeaderRoom)));
        if (!file.readAt(0, there))
            notReadable(name, file);
        checkHeader(name, there);
        const auto size = static_cast<std::size_t>(before.size);
        std::unique_ptr<std::uint8_t[]> bytes(new (std::nothrow) std::uint8_t[size]);
        if (!bytes)
            throw basic::Error(basic::Fault::FileTooLarge, {.file = name}, {size >> 20});
        const bool complete = file.readAt(0, {bytes.get(), size});
        const Stamp after = stampOf(name, file);
        if (after != before)
            continue;
        if (!complete)
            notReadable(name, file);
        auto image = std::make_shared<Image>();
        image->m_file = name;
        image->m_stamp = before;
        if (QDateTime::currentMSecsSinceEpoch() * 1'000'000 - before.modifiedNs < Young)
            image->m_doubtful = endOfTick(before);
        image->takeBytes(std::move(bytes), size);
        return image;
    }
    throw basic::Error(basic::Fault::StillWritten, {.file = name});
}

void Image::setStamp(const Stamp &stamp)
{
    m_stamp = stamp;
    m_doubtful = endOfTick(stamp);
}

bool Image::isStale()
{
    const storage::File file = openForReading(m_file);
    if (stampOf(m_file, file) != m_stamp)
        return true;
    if (!m_doubtful || !m_doubtful->hasExpired())
        return false;
    m_doubtful.reset();
    if (!isHeldBy(file))
        m_stamp = {};
    return m_stamp.size < 0;
}

/// The file's bytes are those of the image.
bool Image::isHeldBy(const storage::File &file) const
{
    const auto size = static_cast<std::size_t>(m_stamp.size);
    std::vector<std::uint8_t> part(std::min(CompareAtOnce, size));
    for (std::size_t at = 0; at < size; at += part.size()) {
        const auto bytes = std::span(part).first(std::min(part.size(), size - at));
        if (!file.readAt(static_cast<qint64>(at), bytes))
            return false;
        for (std::size_t i = 0; m_encodingKey != 0 && i + m_pageSize <= bytes.size(); i += m_pageSize) {
            if (const auto number = static_cast<std::uint32_t>((at + i) / m_pageSize); number > 0)
                encodePage(bytes.subspan(i, m_pageSize), m_encodingKey, number);
        }
        if (std::memcmp(bytes.data(), m_bytes.get() + at, bytes.size()) != 0)
            return false;
    }
    return true;
}

std::shared_ptr<Image> Image::fromBytes(const QString &name, std::span<const std::uint8_t> bytes)
{
    checkHeader(name, bytes.first(std::min(bytes.size(), HeaderRoom)));
    std::unique_ptr<std::uint8_t[]> copy(new std::uint8_t[bytes.size()]);
    std::ranges::copy(bytes, copy.get());
    auto image = std::make_shared<Image>();
    image->m_file = name;
    image->m_stamp.size = static_cast<qint64>(bytes.size());
    image->takeBytes(std::move(copy), bytes.size());
    return image;
}

void Image::takeBytes(std::unique_ptr<std::uint8_t[]> bytes, std::size_t size)
{
    m_bytes = std::move(bytes);
    m_pageSize = pageSizeOf({m_bytes.get(), size});
    m_version = m_pageSize == 2048 ? Version::Jet3 : Version::Jet4;
    m_pageCount = static_cast<std::uint32_t>(size / m_pageSize);
    if (m_pageCount < 3)
        throw basic::Error(basic::Fault::FileTooShort, {.file = m_file}, {size});

    std::uint8_t *const raw = m_bytes.get();
    std::uint32_t end = m_pageCount;
    while (end > 3 && isZero({raw + std::size_t{end - 1} * m_pageSize, m_pageSize}))
        --end;
    std::array<std::uint8_t, HeaderRoom> header{};
    std::copy_n(raw, m_pageSize, header.begin());
    maskHeader(header, m_version == Version::Jet4);
    m_codePage = load16(&header[0x3c]);
    m_encodingKey = load32(&header[0x3e]);
    if (m_version == Version::Jet3)
        m_characters = charactersOf(m_codePage);
    else
        std::iota(m_characters.begin(), m_characters.end(), u'\0');
    for (std::uint32_t number = 1; m_encodingKey != 0 && number < m_pageCount; ++number)
        encodePage({raw + std::size_t{number} * m_pageSize, m_pageSize}, m_encodingKey, number);
    // Pages of zeros at the end were never written: a copy that was broken off keeps the size. They count as missing.
    m_pageCount = end;
    if (m_encodingKey != 0 && page(2)[0] != static_cast<std::uint8_t>(PageType::Definition))
        throw basic::Error(basic::Fault::NotDecoded, {.file = m_file});
}

} // namespace kalvenor::jet
