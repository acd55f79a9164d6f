// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/storage/storage.h"

#include <utility>

namespace kalvenor::storage {

namespace {

Storage *&current()
{
    static Storage *storage = &systemStorage();
    return storage;
}

} // namespace

Storage &currentStorage()
{
    return *current();
}

Storage &exchangeStorage(Storage &other)
{
    return *std::exchange(current(), &other);
}

} // namespace kalvenor::storage
