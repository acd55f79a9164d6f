// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "platform/chart/chart.h"
#include "platform/print/printcontrol.h"
#include "report/composition/kriterien.h"
#include "report/pictures/bildkonvertieren.h"
#include "settings/store/druckvorgaben.h"
#include "settings/store/vorgabendatei.h"
#include "statistics/ages/altersliste.h"
#include <optional>
#include <QDateTime>
#include <QSize>

namespace kalvenor::report {

/// What one run of the report shows. List and figures must stay as they are until it ends.
struct ReportContent {
    quint64 results = 0; ///< other ones have another number; 0: nobody numbers them, so nothing is kept of a run

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

    /// One run. With an export format the file is written and its final name is given back; the pages shown stay, and
    /// what they show is not composed again: RTF is written of their document, HTML takes all but the age list.
    /// Throws what went wrong, with the pointer restored; then nothing was handed over and no half file is left.
    basic::WindowsPath auswahldrucken(const ReportContent &content, print::ExportTarget target = {},
                                      const basic::Progress &progress = {});

    /// As if the once-only hint had been shown.
    void hintShown() { m_hint = desktop::ResultOk; }

    /// How often each was composed.
    struct Compositions {
        int heads = 0, ageLists = 0;
        bool operator==(const Compositions &) const = default;
    };
    Compositions composed;

    /// The document of one run.
    print::PrintDocument compose(const ReportContent &content, const print::ExportTarget &target = {},
                                 const basic::Progress &progress = {});

private:
    /// What a document is made of, the age list and the figures by their number.
    struct Ingredients {
        quint64 results;
        statistics::Statistik statistik;
        chart::ChartLook look;
        QSize chartShape;
        Auswahlkriterien criteria;
        settings::Druckvorgaben vorgaben;
        settings::ReportMeasures measures;
        print::PageSetup page;
        bool operator==(const Ingredients &) const = default;
    };
    /// All that stands before the age list, the same for every format but for the chart's picture file.
    struct Head {
        std::optional<Ingredients> of;
        print::PrintDocument document;
        std::size_t chart = 0; ///< the place of its block, where there is one
    };

    Ingredients ingredients(const ReportContent &content) const;
    const Head &head(const ReportContent &content);
    void addPicture(print::PrintDocument &document, const print::Picture &picture, const print::ExportTarget &target);
    print::TextStyle style(int element) const { return settings::pageStyle(vorgaben, element); }
    QString footerText() const;
    QString now(const ReportContent &content) const;
    void addRunningTexts(print::PrintDocument &document, const ReportContent &content) const;
    void addIntroduction(print::PrintDocument &document, const ReportContent &content) const;
    void addChart(print::PrintDocument &document, const ReportContent &content) const;
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
    Head m_head;
    std::optional<Ingredients> m_shown; ///< of the print control's document
    qint16 m_hint = -1;                 ///< true until the hint was shown
};

} // namespace kalvenor::report
