// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/image.h"
#include <cstdint>
#include <QString>
#include <vector>

namespace kalvenor::jet {

/// The pages a usage map names.
struct UsageMap {
    std::vector<std::uint32_t> pages; ///< ascending, each once; only pages the file has
    bool goesBeyondEnd = false;       ///< it also names pages the file does not have, as maps of sound files may
    bool isThere = true;              ///< else there are no pages
};

UsageMap readUsageMap(const Image &image, std::uint32_t rowPointer);

/// True where the file's own map of free pages says that pages beyond its end are in use: it was cut short.
bool isCutShort(const Image &image);

} // namespace kalvenor::jet
