// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/catalogue.h"
#include "selection/filter/filtern.h"
#include <QStringList>

namespace kalvenor::app {

/// The words of FILTER on the command line.
struct FilterOptions {
    QString name, sex; ///< "m", "w", "mw" or nothing
    QStringList dates; ///< of "birth", "death" and "change"
    QString from, to;  ///< mask texts (dd-mm-yyyy in the system's order) or ISO dates

    bool operator==(const FilterOptions &) const = default;
};

/// "dd-mm-yyyy" or "mm-dd-yyyy".
QString orderText(basic::DateOrder order);

/// The filter for this list. Says on stderr how a date is read that is not day, month and year. Throws
/// Error(WrongUsage) for a date that is none.
selection::Filter filterOf(const FilterOptions &options, selection::PersonList list, basic::DateOrder order,
                           language::CatalogueLanguage language);

} // namespace kalvenor::app
