// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/reader/table.h"
#include <map>
#include <memory>
#include <QHash>
#include <QString>
#include <vector>

namespace kalvenor::jet {

struct CatalogueEntry {
    QString name;
    std::uint32_t definitionPage = 0; ///< 0 for a linked table
    bool system = false;
    QString linkedTo; ///< for a linked table: the file (and table) it is linked to
};

/// One state of a database file. Another state (after another program's change) is another object.
class Database {
public:
    /// Throws as Image::load, and Damaged where the catalogue cannot be read: FileCutShort where it lacks pages.
    static std::shared_ptr<Database> open(const QString &file);
    static std::shared_ptr<Database> open(std::shared_ptr<Image> image);

    const std::shared_ptr<Image> &image() const { return m_image; }
    const QString &file() const { return m_image->file(); }
    const std::vector<CatalogueEntry> &entries() const { return m_entries; }
    /// Without regard to case, but trailing blanks count. nullptr where there is none.
    const CatalogueEntry *entry(const QString &name) const;
    /// Reads the table at its first use. Throws TableNotFound (linked ones too, saying to which file) or Damaged;
    /// FileCutShort where the table went with the end of the file.
    std::shared_ptr<const Table> table(const QString &name);
    /// True where the file is no longer as it was read. Throws as Image::isStale.
    bool isStale() const;
    /// What damage was passed over in the file and its catalogue, not in the tables.
    const std::vector<Damage> &damage() const { return m_damage.kinds(); }
    /// How many pages the file lacks at its end, at least, that its tables refer to; 0 where it is whole. That its map
    /// of free pages runs ahead of the end says nothing.
    std::uint32_t missingPages() const { return m_missingPages; }
    /// The error that says so: FileCutShort, or another fault with the same arguments.
    basic::Error incomplete(basic::Fault fault = basic::Fault::FileCutShort) const;

private:
    void readCatalogue();
    void addEntry(CatalogueEntry entry);
    void findMissingPages(const Table &catalogue);
    void note(basic::Fault fault, std::vector<basic::Argument> arguments);

    std::shared_ptr<Image> m_image;
    std::vector<CatalogueEntry> m_entries;
    QHash<QString, std::size_t> m_byName;                     ///< name without case → place in m_entries
    QHash<std::uint32_t, std::size_t> m_byPage;               ///< definition page → place in m_entries
    std::map<QString, std::shared_ptr<const Table>> m_tables; ///< by the catalogue's spelling
    std::uint32_t m_missingPages = 0;
    DamageLog m_damage;
};

} // namespace kalvenor::jet
