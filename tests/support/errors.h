// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include <optional>

namespace kalvenor::test {

/// What some work throws; nothing where it succeeds.
std::optional<basic::Error> thrownBy(auto &&work)
{
    try {
        work();
    } catch (const basic::Error &error) {
        return error;
    }
    return std::nullopt;
}

/// Its fault, or None.
basic::Fault faultOf(auto &&work)
{
    const auto error = thrownBy(work);
    return error ? error->fault() : basic::Fault::None;
}

/// Its kind; nothing where it succeeds.
std::optional<basic::ErrorKind> kindOf(auto &&work)
{
    const auto error = thrownBy(work);
    return error ? std::optional(error->kind()) : std::nullopt;
}

/// Its technical wording, or "".
QString refusalOf(auto &&work)
{
    const auto error = thrownBy(work);
    return error ? error->message() : QString();
}

} // namespace kalvenor::test
