// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/storage.h"
#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <map>
#include <vector>

/// Files that are nowhere but in memory, in use for the rest of the process: a target that works on a file is then as
/// quick as one that works on bytes. Every write moves the file's time. (Code that does not pass the storage, such as a
/// look at permissions, sees no file.)
class MemoryStorage : public kalvenor::storage::Storage {
public:
    using Bytes = std::vector<std::uint8_t>;

    MemoryStorage() { kalvenor::storage::exchangeStorage(*this); }

    Bytes &bytes(const QString &path) { return content(path)->bytes; }
    void fill(const QString &path, const std::uint8_t *data, std::size_t size)
    {
        bytes(path).assign(data, data + size);
        ++content(path)->time;
    }

    kalvenor::storage::Opened open(const QString &path, kalvenor::storage::OpenMode) override
    {
        const auto found = m_files.find(path);
        if (found == m_files.end())
            return {nullptr, kalvenor::storage::FileFault::NotFound, ENOENT};
        return {std::make_unique<File>(found->second)};
    }
    kalvenor::storage::Opened create(const QString &path, const QString &) override
    {
        if (m_files.contains(path))
            return {nullptr, kalvenor::storage::FileFault::Other, EEXIST};
        return {std::make_unique<File>(content(path))};
    }
    kalvenor::storage::SystemError rename(const QString &from, const QString &to) override
    {
        const auto node = m_files.find(from);
        if (node == m_files.end())
            return ENOENT;
        m_files[to] = node->second;
        m_files.erase(node);
        return 0;
    }
    kalvenor::storage::SystemError remove(const QString &path) override
    {
        return m_files.erase(path) == 1 ? 0 : ENOENT;
    }
    kalvenor::storage::SystemError syncFolder(const QString &) override { return 0; }

private:
    struct Content {
        Bytes bytes;
        qint64 time = 0;
    };

    class File : public kalvenor::storage::OpenFile {
    public:
        explicit File(std::shared_ptr<Content> content) : m_content(std::move(content)) {}

        kalvenor::storage::SystemError state(kalvenor::storage::FileState &now) const override
        {
            now = {static_cast<qint64>(m_content->bytes.size()), m_content->time};
            return 0;
        }
        qint64 read(qint64 offset, std::span<std::uint8_t> into) const override
        {
            const Bytes &bytes = m_content->bytes;
            const std::size_t begin = std::min(static_cast<std::size_t>(offset), bytes.size());
            const std::size_t count = std::min(into.size(), bytes.size() - begin);
            if (count > 0)
                std::memcpy(into.data(), &bytes[begin], count);
            return static_cast<qint64>(count);
        }
        qint64 write(qint64 offset, std::span<const std::uint8_t> from) override
        {
            Bytes &bytes = m_content->bytes;
            const std::size_t begin = static_cast<std::size_t>(offset);
            bytes.resize(std::max(bytes.size(), begin + from.size()));
            std::memcpy(&bytes[begin], from.data(), from.size());
            ++m_content->time;
            return static_cast<qint64>(from.size());
        }
        kalvenor::storage::SystemError sync() override { return 0; }
        kalvenor::storage::SystemError lock(qint64, qint64) override { return 0; }
        kalvenor::storage::SystemError unlock(qint64, qint64) override { return 0; }

    private:
        std::shared_ptr<Content> m_content;
    };

    std::shared_ptr<Content> &content(const QString &path)
    {
        std::shared_ptr<Content> &content = m_files[path];
        if (!content)
            content = std::make_shared<Content>();
        return content;
    }

    std::map<QString, std::shared_ptr<Content>> m_files;
};

/// Calls `visit(place, changed bits)` for each byte that differs; states of different sizes are a failure.
template <class Visit>
void forEachDifference(const MemoryStorage::Bytes &before, const MemoryStorage::Bytes &after, Visit visit)
{
    if (before.size() != after.size())
        std::abort();
    constexpr std::size_t block = 512; // compared in one go: a watched step a byte would cost more than what is tested
    for (std::size_t begin = 0; begin < before.size(); begin += block) {
        const std::size_t end = std::min(begin + block, before.size());
        if (std::memcmp(&before[begin], &after[begin], end - begin) == 0)
            continue;
        for (std::size_t i = begin; i < end; ++i) {
            if (before[i] != after[i])
                visit(i, static_cast<std::uint8_t>(before[i] ^ after[i]));
        }
    }
}
