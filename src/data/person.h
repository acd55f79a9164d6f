// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/dao/recordset.h"

namespace kalvenor::data {

/// Places of the person record's columns in a recordset on `Daten`; found once, used for each row.
/// Throws ColumnNotFound naming the column.
struct PersonColumns {
    explicit PersonColumns(const dao::Recordset &daten);

    int Counter;
    int Listname;
    int Markierung;
    int Geburtsdatum;
    int Geburt_XX;
    int Sterbedatum;
    int sterbe_XX;
    int geaendert;
    int Geschlecht;
    int Vater;
    int Mutter;
    int vnamen;
    int nnamen;
};

} // namespace kalvenor::data
