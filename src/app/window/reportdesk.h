// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/work.h"
#include "platform/print/printcontrol.h"
#include "report/composition/bericht.h"
#include <memory>
#include <optional>
#include <QObject>

namespace kalvenor::selection {
class SelectionController;
class SelectionPanel;
} // namespace kalvenor::selection
namespace kalvenor::settings {
class Druckvorschau;
}
namespace kalvenor::statistics {
class StatisticsController;
class StatisticsPanel;
} // namespace kalvenor::statistics

namespace kalvenor::app {

/// The report in the main window: composed from what the window shows, seen in the preview, set up in its dialog.
class ReportDesk : public QObject {
    Q_OBJECT
public:
    ReportDesk(data::Session &session, desktop::Work &work, selection::SelectionController &lists,
               selection::SelectionPanel &selection, statistics::StatisticsController &statistics,
               statistics::StatisticsPanel &panel);
    ~ReportDesk() override;

    /// Computes list and chart again, composes the report and shows its pages in the preview, which comes to the front
    /// and is given the command ("drucker", "save") where there is one.
    void show(const QString &previewCommand = {});
    /// As Hauptform says.
    std::optional<basic::WindowsPath> auswahldrucken(const print::ExportTarget &target);
    void initladen() { m_bericht.initladen(); }
    bool initspeichern();
    /// The print settings dialog; what changes is in the preview's pages at once.
    bool init();
    settings::Druckvorschau *preview() const { return m_preview.get(); }
    /// False where the preview is busy; it closes as soon as it is not.
    bool closePreview();

Q_SIGNALS:
    void said(const QString &text);

private:
    report::ReportContent content() const;
    void showPreview();
    void forget();

    data::Session &m_session;
    desktop::Work &m_work;
    selection::SelectionController &m_lists;
    selection::SelectionPanel &m_selection;
    statistics::StatisticsController &m_statistics;
    statistics::StatisticsPanel &m_panel;
    print::PrintControl m_print;
    report::Bericht m_bericht;
    std::unique_ptr<settings::Druckvorschau> m_preview; ///< from the first report on
};

} // namespace kalvenor::app
