// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/person.h"

using namespace Qt::StringLiterals;

namespace kalvenor::data {

PersonColumns::PersonColumns(const dao::Recordset &daten)
    : Counter(daten.fieldIndex(u"Counter"_s)), Listname(daten.fieldIndex(u"Listname"_s)),
      Markierung(daten.fieldIndex(u"Markierung"_s)), Geburtsdatum(daten.fieldIndex(u"Geburtsdatum"_s)),
      Geburt_XX(daten.fieldIndex(u"Geburt_XX"_s)), Sterbedatum(daten.fieldIndex(u"Sterbedatum"_s)),
      sterbe_XX(daten.fieldIndex(u"sterbe_XX"_s)), geaendert(daten.fieldIndex(u"geaendert"_s)),
      Geschlecht(daten.fieldIndex(u"Geschlecht"_s)), Vater(daten.fieldIndex(u"Vater"_s)),
      Mutter(daten.fieldIndex(u"Mutter"_s)), vnamen(daten.fieldIndex(u"vnamen"_s)),
      nnamen(daten.fieldIndex(u"nnamen"_s))
{
}

} // namespace kalvenor::data
