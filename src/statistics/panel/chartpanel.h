// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/options/statistik.h"
#include "statistics/panel/statisticscontroller.h"
#include <array>
#include <QWidget>

class QAbstractButton;
class QCheckBox;
class QComboBox;

namespace kalvenor::chart {
class ChartControl;
}

namespace kalvenor::statistics {

class EmptyState;
class FiguresTable;

/// The chart `Grafik` with its options above and the figures below.
class ChartPanel : public QWidget {
    Q_OBJECT
public:
    explicit ChartPanel(StatisticsController &controller, QWidget *parent = nullptr);

    chart::ChartControl &chart() { return *m_chart; }
    /// The chart's own options; the sex boxes of the list are left at 1.
    Statistik options() const;
    void setOptions(const Statistik &options);
    /// Type, legend and texts as the controls and the settings file say.
    void updateLook();
    void focusFirst();

Q_SIGNALS:
    /// An option was changed.
    void chartWanted();
    void said(const QString &text);
    /// A figure of the chart was chosen: its column and row in the table.
    void figureChosen(int column, int row);
    /// The list of those who are left out is wanted.
    void leftOutWanted();
    /// There is nobody to show: persons are to be chosen.
    void personsWanted();

private:
    QWidget *makeOptions();
    QWidget *makeTools();
    void nameActions();
    void showFigures();
    void showState();
    void savePicture();

    StatisticsController &m_controller;
    // In the order in which Tab goes through them.
    QComboBox *m_type;
    QCheckBox *m_legend;
    std::array<QAbstractButton *, 2> m_grouping; ///< gt_ribbon: by birth, by death
    std::array<QCheckBox *, 2> m_sexes;
    chart::ChartControl *m_chart;
    EmptyState *m_empty;
    FiguresTable *m_figures;
};

} // namespace kalvenor::statistics
