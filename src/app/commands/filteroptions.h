// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/filter/filtern.h"
#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

namespace kalvenor::app {

/// The words of FILTER on the command line.
class FilterOptions {
public:
    /// Adds --name, --sex, --dates, --from and --to to a command.
    void addTo(CLI::App &command);

    /// The filter for this list, nothing where no word of it was given. Dates are mask texts (dd-mm-yyyy in the
    /// system's order) or ISO dates, which are turned into mask texts. Throws CLI::ValidationError for a date that is
    /// none.
    std::optional<selection::Filter> filter(selection::PersonList list, basic::DateOrder order) const;

private:
    std::string m_name;
    std::string m_sex;
    std::vector<std::string> m_dates;
    std::string m_from;
    std::string m_to;
    std::vector<CLI::Option *> m_options;
};

} // namespace kalvenor::app
