// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/storage/storage.h"
#include <cerrno>
#include <functional>
#include <gtest/gtest.h>
#include <utility>

namespace kalvenor::test {

enum class Call { None, Open, State, Read, Lock, Create, Write, Sync, Rename, Remove, SyncFolder };
enum class Fault {
    Fails,       ///< the call answers an I/O error
    FailsFromOn, ///< it and all that follow do
    CutShort,    ///< the call reads or writes only half of what it could
    Pretends,    ///< the call says done and has done nothing
    OtherFirst,  ///< another program acts before the call
};

/// The system's storage, put in use as long as the object lives, with one call that goes wrong.
class FaultyStorage : public storage::Storage {
public:
    FaultyStorage() : m_system(storage::exchangeStorage(*this)) {}
    ~FaultyStorage() override { storage::exchangeStorage(m_system); }

    /// The `number`th call from now on goes wrong (counted from 1). `other` is the other program; what it calls is
    /// neither counted nor wrong.
    void arm(int number, Fault fault, std::function<void()> other = {})
    {
        m_left = number;
        m_fault = fault;
        m_other = std::move(other);
        m_struck = Call::None;
    }
    /// Calls that change nothing on the disk are neither counted nor wrong.
    void strikeOnlyChanges() { m_onlyChanges = true; }
    /// From here on all goes well. Says which call went wrong; None where there were fewer calls.
    Call disarm()
    {
        m_left = 0;
        m_failing = false;
        return m_struck;
    }

    storage::Opened open(const QString &path, storage::OpenMode mode) override
    {
        if (strikes(Call::Open))
            return {nullptr, storage::FileFault::Other, EIO};
        return wrapped(m_system.open(path, mode));
    }
    storage::Opened create(const QString &path, const QString &like) override
    {
        if (strikes(Call::Create))
            return {nullptr, storage::FileFault::Other, EIO};
        return wrapped(m_system.create(path, like));
    }
    storage::SystemError rename(const QString &from, const QString &to) override
    {
        return strikes(Call::Rename) ? EIO : m_system.rename(from, to);
    }
    storage::SystemError remove(const QString &path) override
    {
        return strikes(Call::Remove) ? EIO : m_system.remove(path);
    }
    storage::SystemError syncFolder(const QString &folder) override
    {
        return strikes(Call::SyncFolder) ? EIO : m_system.syncFolder(folder);
    }

private:
    class FaultyFile : public storage::OpenFile {
    public:
        FaultyFile(FaultyStorage &storage, std::unique_ptr<storage::OpenFile> file)
            : m_storage(storage), m_file(std::move(file))
        {
        }
        storage::SystemError state(storage::FileState &now) const override
        {
            return m_storage.strikes(Call::State) ? EIO : m_file->state(now);
        }
        qint64 read(qint64 offset, std::span<std::uint8_t> into) const override
        {
            if (m_storage.strikes(Call::Read)) {
                if (m_storage.m_fault != Fault::CutShort)
                    return -EIO;
                into = into.first((into.size() + 1) / 2);
            }
            return m_file->read(offset, into);
        }
        qint64 write(qint64 offset, std::span<const std::uint8_t> bytes) override
        {
            if (m_storage.strikes(Call::Write)) {
                if (m_storage.m_fault == Fault::Pretends)
                    return static_cast<qint64>(bytes.size());
                if (m_storage.m_fault != Fault::CutShort)
                    return -EIO;
                bytes = bytes.first((bytes.size() + 1) / 2);
            }
            return m_file->write(offset, bytes);
        }
        storage::SystemError sync() override { return m_storage.strikes(Call::Sync) ? EIO : m_file->sync(); }
        storage::SystemError lock(qint64 offset, qint64 length) override
        {
            return m_storage.strikes(Call::Lock) ? EIO : m_file->lock(offset, length);
        }
        storage::SystemError unlock(qint64 offset, qint64 length) override
        {
            return m_storage.strikes(Call::Lock) ? EIO : m_file->unlock(offset, length);
        }

    private:
        FaultyStorage &m_storage;
        std::unique_ptr<storage::OpenFile> m_file;
    };

    storage::Opened wrapped(storage::Opened opened)
    {
        if (opened.file)
            opened.file = std::make_unique<FaultyFile>(*this, std::move(opened.file));
        return opened;
    }

    /// Whether the call at hand goes wrong.
    bool strikes(Call call)
    {
        const bool changes = call >= Call::Create;
        if (m_otherActs || (m_onlyChanges && !changes))
            return false;
        if (m_failing)
            return true;
        if (m_left == 0 || --m_left != 0)
            return false;
        m_struck = call;
        if (m_fault == Fault::OtherFirst) {
            m_otherActs = true;
            m_other();
            m_otherActs = false;
            return false;
        }
        m_failing = m_fault == Fault::FailsFromOn;
        const bool transfers = call == Call::Read || call == Call::Write;
        return m_fault == Fault::Fails || m_failing || (m_fault == Fault::CutShort && transfers) ||
               (m_fault == Fault::Pretends && call == Call::Write);
    }

    storage::Storage &m_system;
    std::function<void()> m_other;
    Fault m_fault = Fault::Fails;
    Call m_struck = Call::None;
    int m_left = 0; ///< calls to go until it strikes; 0: not armed
    bool m_onlyChanges = false;
    bool m_failing = false;
    bool m_otherActs = false;
};

/// Does the work again and again: with its first call going wrong, with its second, …, until it has no more calls.
/// `prepare` and `check` work as usual; `check` hears which call it was.
inline void atEachCall(FaultyStorage &storage, Fault fault, const std::function<void()> &prepare,
                       const std::function<void()> &work, const std::function<void(Call)> &check,
                       const std::function<void()> &other = {})
{
    Call struck = Call::None;
    int number = 0;
    do {
        SCOPED_TRACE("fault " + std::to_string(static_cast<int>(fault)) + " at call " + std::to_string(++number));
        prepare();
        storage.arm(number, fault, other);
        work();
        struck = storage.disarm();
        check(struck);
    } while (struck != Call::None && !::testing::Test::HasFatalFailure());
    EXPECT_GT(number, 1) << "the work never touched the storage";
}

} // namespace kalvenor::test
