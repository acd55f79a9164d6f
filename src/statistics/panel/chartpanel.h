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
class QGridLayout;
class QLabel;

namespace kalvenor::chart {
class ChartControl;
}

namespace kalvenor::statistics {

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

Q_SIGNALS:
    /// An option was changed.
    void chartWanted();
    void said(const QString &text);

private:
    QWidget *makeOptions();
    QWidget *makeFigures();
    void nameActions();
    void showFigures();
    void savePicture();

    StatisticsController &m_controller;
    // In the order in which Tab goes through them.
    QComboBox *m_type;
    QCheckBox *m_legend;
    std::array<QAbstractButton *, 2> m_grouping; ///< gt_ribbon: by birth, by death
    std::array<QCheckBox *, 2> m_sexes;
    chart::ChartControl *m_chart;
    std::array<QLabel *, 3> m_counts;   ///< men, women, all
    std::array<QLabel *, 3> m_averages; ///< the same
    QLabel *m_unknownSex;               ///< how many of all
    QLabel *m_range;
    QLabel *m_withoutDate;
    QLabel *m_leftOut;
};

} // namespace kalvenor::statistics
