// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "platform/chart/chart.h"
#include "platform/print/printcontrol.h"
#include "report/composition/kriterien.h"
#include "report/pictures/bildkonvertieren.h"
#include "settings/store/druckvorgaben.h"
#include "statistics/ages/altersliste.h"
#include <QDateTime>
#include <QSize>

namespace kalvenor::report {

/// What one run of the report shows. List and figures must stay as they are until it ends.
struct ReportContent {
    statistics::Statistik statistik;
    QString introductionFile = {}; ///< native, where the introduction came from one: for messages
    const statistics::Altersliste &list;
    const statistics::Grafikzahlen &figures;
    chart::ChartLook look;
    QSize chartShape{160, 100}; ///< of the chart control on the screen
    Auswahlkriterien criteria;
    QDateTime now = QDateTime::currentDateTime();
};

/// Composes the report and hands it to the print control, or writes it into a file.
class Bericht {
public:
    Bericht(data::Session &session, print::PrintControl &print);

    settings::Druckvorgaben vorgaben; ///< loaded with every run
    QString reportName;               ///< stands in the names of exported files; mostly empty

    /// Reads the settings and the page into `vorgaben` and the print control.
    void initladen();
    /// False where the settings file could not be written.
    bool initspeichern() const;

    /// One run. With an export format the file is written and its final name is given back; the pages shown stay.
    /// Throws what went wrong, with the pointer restored; then nothing was handed over and no half file is left.
    basic::WindowsPath auswahldrucken(const ReportContent &content, print::ExportTarget target = {},
                                      const basic::Progress &progress = {});

    /// As if the once-only hint had been shown.
    void hintShown() { m_hint = desktop::ResultOk; }

    /// The document of one run.
    print::PrintDocument compose(const ReportContent &content, const print::ExportTarget &target = {},
                                 const basic::Progress &progress = {});

private:
    print::TextStyle style(int element) const { return settings::pageStyle(vorgaben, element); }
    QString footerText() const;
    QString now(const ReportContent &content) const;
    void addRunningTexts(print::PrintDocument &document, const ReportContent &content) const;
    void addIntroduction(print::PrintDocument &document, const ReportContent &content) const;
    void addChart(print::PrintDocument &document, const ReportContent &content, const print::ExportTarget &target);
    void addCriteria(print::PrintDocument &document, const ReportContent &content) const;
    void addAgeList(print::PrintDocument &document, const ReportContent &content, const print::ExportTarget &target,
                    const basic::Progress &progress);
    basic::WindowsPath chartFile(const print::ExportTarget &target) const;
    std::vector<basic::WindowsPath> picturesBeside(const print::ExportTarget &target) const;
    basic::WindowsPath writePicture(const QImage &picture, const print::ExportTarget &target);
    void copyForHost(const QImage &picture, const print::ExportTarget &target);
    void showHint();

    data::Session &m_session;
    print::PrintControl &m_print;
    Bildumwandlung m_pictures;
    qint16 m_hint = -1; ///< true until the hint was shown
};

} // namespace kalvenor::report
