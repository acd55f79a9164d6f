// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace kalvenor::selection {

/// The two person lists, numbered as the window's control arrays are.
enum class PersonList { Unmarked = 0, Marked = 1 };

/// The query of a list that no filter narrows.
QString plainListQuery(PersonList list);

/// The WHERE part of a list's query: from "WHERE" up to, not including, "ORDER". Empty where there is no such part.
QString wherePart(const QString &listQuery);

/// The statement that gives every person the list shows the other list's mark.
QString markAllStatement(PersonList from, const QString &listQuery);

} // namespace kalvenor::selection
