// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/fault.h"

#include <algorithm>
#include <iterator>

namespace kalvenor::basic {

namespace {

struct Entry {
    Fault fault;
    ErrorKind kind;
    const char *name;
};
constexpr Entry Entries[] = {
#define F(name, number, kind) {Fault::name, ErrorKind::kind, #name},
    KALVENOR_FAULTS(F)
#undef F
};

const Entry *find(Fault fault)
{
    const auto *found = std::ranges::find(Entries, fault, &Entry::fault);
    return found == std::end(Entries) ? nullptr : found;
}

} // namespace

ErrorKind kindOf(Fault fault)
{
    const Entry *entry = find(fault);
    return entry != nullptr ? entry->kind : ErrorKind::InvalidProcedureCall;
}

const char *nameOf(Fault fault)
{
    const Entry *entry = find(fault);
    return entry != nullptr ? entry->name : "None";
}

} // namespace kalvenor::basic
