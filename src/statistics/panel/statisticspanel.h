// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/options/statistik.h"
#include "statistics/panel/statisticscontroller.h"
#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTabWidget;

namespace kalvenor::statistics {

class AgeListPanel;
class ChartPanel;
class TextEditor;

/// The statistic beside the lists: title, introduction, chart with figures, age list. Each control computes anew what
/// hangs on it; what is shown follows the marks by itself unless that takes too long, then on demand.
class StatisticsPanel : public QWidget {
    Q_OBJECT
public:
    enum Tab { Introduction, Chart, AgeList };

    explicit StatisticsPanel(StatisticsController &controller, QWidget *parent = nullptr);

    QLineEdit &title() { return *m_title; }
    TextEditor &introduction() { return *m_introduction; }
    ChartPanel &chartPanel() { return *m_chart; }
    QTabWidget &tabs() { return *m_tabs; }
    void showTab(Tab tab);

    /// What the controls hold, the options alone: reading the introduction takes longer.
    Statistik options() const;
    Statistik statistik() const;
    /// Sets the controls; nothing is computed.
    void setOptions(const Statistik &options);
    void setStatistik(const Statistik &statistik);

    /// Both anew, with the controls as they stand. False where one of them was not finished.
    bool alterslistenausgabe();
    bool grafikermitteln();
    bool computeAll() { return alterslistenausgabe() && grafikermitteln(); }
    /// Those that marks, persons or controls have made outdated.
    bool computeOutdated();
    /// Marks or persons have changed: what is shown is computed soon.
    void personsChanged();
    /// Nobody can be unmarked.
    void setReadOnly(bool readOnly);

Q_SIGNALS:
    void said(const QString &text);
    /// This person is to be shown in the list of the marked ones.
    void personWanted(qint32 counter);
    /// These are no longer to be marked.
    void unmarkWanted(const std::vector<qint32> &counters);
    /// Nobody is marked: persons are to be chosen.
    void personsWanted();
    /// Title, introduction or an option was changed by the user.
    void edited();

private:
    QWidget *makeNoticeBar();
    void tabChosen();
    void computeShown();
    void showPersonsOf(int column, int row);
    void showLeftOut();
    bool isShownCurrent() const;

    StatisticsController &m_controller;
    // In the order in which Tab goes through them.
    QLineEdit *m_title;
    QWidget *m_notice;
    QTabWidget *m_tabs;
    TextEditor *m_introduction;
    ChartPanel *m_chart;
    AgeListPanel *m_list;
    QTimer m_pause;
};

} // namespace kalvenor::statistics
