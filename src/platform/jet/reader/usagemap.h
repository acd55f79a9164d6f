// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/image.h"
#include <cstdint>
#include <QString>
#include <vector>

namespace kalvenor::jet {

/// No file has more: 2 GiB at 2 KiB each. A number beyond it is nonsense.
constexpr std::uint32_t MostPages = 1U << 20;

/// The pages a usage map names.
struct UsageMap {
    std::vector<std::uint32_t> pages; ///< ascending, each once; only pages the file has
    std::uint32_t end = 0;            ///< behind the last page it names or needs, which the file may not have
    bool isThere = true;              ///< else there are no pages
};

UsageMap readUsageMap(const Image &image, std::uint32_t rowPointer);

} // namespace kalvenor::jet
