// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/fault.h"
#include "platform/jet/reader/image.h"
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// Memo and OLE values: in the record, in one row of a long-value page, or in a chain of such rows.
namespace kalvenor::jet {

/// The value behind a field. It lies in the image or, where it is a chain, in `scratch`. Nothing where it cannot be
/// read; a chain that ends early gives what there is. In both cases `problem` says what is wrong.
std::optional<std::span<const std::uint8_t>> longValue(const Image &image, std::span<const std::uint8_t> field,
                                                       std::vector<std::uint8_t> &scratch, basic::Fault *problem);

} // namespace kalvenor::jet
