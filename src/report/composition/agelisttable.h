// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/person.h"
#include "data/session/session.h"
#include "platform/print/printcontrol.h"
#include "report/pictures/bildkonvertieren.h"
#include "statistics/ages/altersliste.h"
#include <optional>
#include <QHash>

namespace kalvenor::report {

/// The age list of the report: age, sex and list name of each person, as they stand in the list, as a row of three
/// columns. In HTML a fourth one holds the person's full name, linked to the page that the host program has written of
/// the person, where it has. A column is as wide as the settings say, and wider where one of its texts needs
/// more, as far as the line goes.
class AgeListTable {
public:
    struct Setup {
        data::Session &session;
        const print::ExportTarget &target;
        Bildumwandlung &pictures;
        QString reportName;
        print::TextStyle style;
        print::Twips rowSpacing = 0;
        print::Twips lineWidth = 0; ///< between the margins
        bool headed = true;         ///< with column headings, again on each page
    };
    explicit AgeListTable(Setup setup);

    /// Throws Error(Cancelled) where the watcher says so. Steps are rows.
    void write(print::PrintDocument &document, const statistics::Altersliste &list, const basic::Progress &progress);

private:
    print::TextStyle headingStyle() const;
    std::vector<print::Column> columns(const statistics::Altersliste &list) const;
    QString fullName(qint32 counter);
    QString inOutputFolder(const QString &name);
    QString link(qint32 counter);
    QString pictureOf(const QString &page);
    QString symbol();

    Setup m_setup;
    bool m_html;
    std::optional<data::PersonColumns> m_columns;
    std::optional<QHash<QString, QString>> m_outputFiles; ///< by name in capitals
    QString m_symbol;                                     ///< picture file for persons without one of their own
    bool m_converts = true;                               ///< no picture has failed yet, which is told each time
};

} // namespace kalvenor::report
