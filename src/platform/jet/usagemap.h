// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/image.h"
#include <cstdint>
#include <QString>
#include <vector>

namespace kalvenor::jet {

/// The pages a usage map names, ascending, each once; bits for pages the file does not have are ignored. Where the map
/// itself cannot be read, `problem` says why and there are no pages.
std::vector<std::uint32_t> pagesOfUsageMap(const Image &image, std::uint32_t rowPointer, QString *problem);

} // namespace kalvenor::jet
