// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/text.h"
#include "platform/basic/date.h"
#include "selection/lists/listquery.h"
#include <array>
#include <optional>
#include <QString>

namespace kalvenor::selection {

/// The filter controls, by their names. Boxes are 0 or 1.
struct Filter {
    QString Presse{};                              ///< name pattern, as typed
    std::array<int, 2> Geschlechtfilter{};         ///< men, women
    std::array<int, 3> Datumfilter{};              ///< birth, death, last change
    std::array<QString, 2> Presse_Datum{};         ///< lower and upper bound, as the mask holds them
    PersonList Filterliste = PersonList::Unmarked; ///< the list that is narrowed

    bool operator==(const Filter &) const = default;
};

/// What filtering gives: the pattern as it goes back into the text box, and both lists' queries.
struct FilterQueries {
    QString pattern;
    std::array<QString, 2> queries; ///< by PersonList
};

/// Why a pattern that the engine refuses is wrong, where that is plain to see; Text::None otherwise. `better` is what
/// can be typed instead.
struct PatternProblem {
    language::Text text = language::Text::None;
    QString better{};
};
PatternProblem patternProblem(const QString &pattern);

/// The day that a bound is taken for; nothing where it is no date and so bounds nothing.
std::optional<qint64> boundDay(const QString &bound, basic::DateOrder order);

/// The filter as two queries; the one of the other list is plain. The text is built exactly as the host's own add-ins
/// build it: no quoting of apostrophes, and an upper bound may stand directly behind a day number.
FilterQueries filtern(const Filter &filter, basic::DateOrder order);

} // namespace kalvenor::selection
