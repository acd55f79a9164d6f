// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/person.h"

namespace kalvenor::data {

PersonColumns::PersonColumns(const dao::Recordset &daten)
    : Counter(daten.fieldIndex(QStringLiteral("Counter"))), Listname(daten.fieldIndex(QStringLiteral("Listname"))),
      Markierung(daten.fieldIndex(QStringLiteral("Markierung"))),
      Geburtsdatum(daten.fieldIndex(QStringLiteral("Geburtsdatum"))),
      Geburt_XX(daten.fieldIndex(QStringLiteral("Geburt_XX"))),
      Sterbedatum(daten.fieldIndex(QStringLiteral("Sterbedatum"))),
      sterbe_XX(daten.fieldIndex(QStringLiteral("sterbe_XX"))),
      geaendert(daten.fieldIndex(QStringLiteral("geaendert"))),
      Geschlecht(daten.fieldIndex(QStringLiteral("Geschlecht"))), Vater(daten.fieldIndex(QStringLiteral("Vater"))),
      Mutter(daten.fieldIndex(QStringLiteral("Mutter"))), vnamen(daten.fieldIndex(QStringLiteral("vnamen"))),
      nnamen(daten.fieldIndex(QStringLiteral("nnamen")))
{
}

} // namespace kalvenor::data
