// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <QString>
#include <vector>

namespace kalvenor::jet {
class Creator;
}

// Small databases and host installations for tests, made by the program's own creator.
namespace kalvenor::test {

using namespace Qt::StringLiterals;

/// One row of the person table. Dates are day numbers, nothing = null.
struct TestPerson {
    qint32 counter = 0;
    QString listname = {}; ///< "Surname, First names"
    bool marked = false;
    QString sex = u"M"_s;
    std::optional<qint32> birth = {}, death = {};
    qint32 father = 0, mother = 0;
    QString birthXX = {}, deathXX = {}; ///< empty = null
    qint32 changed = 38000;
};

/// Writes a family database with all its 21 tables; those beside the persons have a row or two. The index "Counter" of
/// the persons is unique unless two of them have the same counter. `file` is a native path.
/// `without` names a table that is left out.
void writeFamily(const QString &file, const std::vector<TestPerson> &persons, std::uint32_t encodingKey = 0,
                 const QString &without = {});

/// The tables of a family database beside the persons.
void addOtherTables(jet::Creator &creator, const QString &without = {});

/// Damages the first page of the persons: it says that it has more rows than a page can have.
void damageFamily(const QString &file);

/// Makes a host installation: folder/QV with its settings, texts, side databases and folder/QV/Familie/familie.mdb, and
/// the program's own folder folder/QV/Kalvenor. `folder` is native and absolute.
void writeHost(const QString &folder, const std::vector<TestPerson> &persons);

} // namespace kalvenor::test
