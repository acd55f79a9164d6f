// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/familydesk.h"
#include "app/window/messageline.h"
#include "app/window/reportdesk.h"
#include "app/window/statuspanels.h"
#include "app/window/templatedesk.h"
#include "host/hauptform.h"
#include "platform/desktop/work.h"
#include "selection/panel/selectioncontroller.h"
#include "statistics/panel/statisticscontroller.h"
#include <QMainWindow>

class QSplitter;

namespace kalvenor::selection {
class SelectionPanel;
}
namespace kalvenor::statistics {
class StatisticsPanel;
}

namespace kalvenor::app {

class HelpWindow;
struct MainActions;

/// The main window: a frame around the panels, with menus, tool bar and status bar. Closing it closes all databases;
/// while work is running, the work is cancelled first, and what is not saved is asked for.
class Auswahl : public QMainWindow, public host::Hauptform {
    Q_OBJECT
public:
    /// Loads the lists. Errors are shown, the window is there in any case.
    explicit Auswahl(data::Session &session, QWidget *parent = nullptr);
    ~Auswahl() override;

    selection::SelectionController &controller() { return m_controller; }
    selection::SelectionPanel &selectionPanel() { return *m_selection; }
    statistics::StatisticsController &statisticsController() { return m_statistics; }
    statistics::StatisticsPanel &statisticsPanel() { return *m_statisticsPanel; }
    TemplateDesk &templates() { return m_templates; }
    FamilyDesk &family() { return m_family; }
    ReportDesk &report() { return m_report; }

    std::optional<basic::WindowsPath> auswahldrucken(const print::ExportTarget &target) override
    {
        return m_report.auswahldrucken(target);
    }
    void initladen() override { m_report.initladen(); }
    bool initspeichern() override { return m_report.initspeichern(); }
    bool init() override { return m_report.init(); }
    void panelaufruf(const QString &thema) override;
    QWidget &fenster() override { return *this; }

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void connectActions();
    void updateState();
    void updateReportActions();
    void say(const QString &text);
    void fitTools();
    void giveFirstSizes();
    void showMarkedPerson(qint32 counter);
    void connectStatistic();
    void fillRecent();
    void updateTitle();

    data::Session &m_session;
    desktop::Work m_work;
    selection::SelectionController m_controller;
    statistics::StatisticsController m_statistics;
    selection::SelectionPanel *m_selection;
    statistics::StatisticsPanel *m_statisticsPanel;
    TemplateDesk m_templates;
    FamilyDesk m_family;
    ReportDesk m_report;
    QSplitter *m_splitter;
    std::unique_ptr<MainActions> m_actions;
    MessageLine *m_message;
    StatusPanels m_panels;
    std::unique_ptr<HelpWindow> m_help; ///< from the first call on
    bool m_closing = false;             ///< as soon as the running work has ended
    bool m_closed = false;
    bool m_shown = false;
};

} // namespace kalvenor::app
