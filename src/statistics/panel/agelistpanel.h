// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/panel/statisticscontroller.h"
#include <array>
#include <QWidget>

class QCheckBox;
class QLabel;
class QTableView;

namespace kalvenor::statistics {

class AgeListModel;

/// The age list with the sex boxes `geschlechtalter`(0) and (1).
class AgeListPanel : public QWidget {
    Q_OBJECT
public:
    explicit AgeListPanel(StatisticsController &controller, QWidget *parent = nullptr);

    std::array<QCheckBox *, 2> sexBoxes() const { return m_sexes; }
    /// The lines that are selected, a line each, to the clipboard.
    void copy() const;
    /// How many lines there are, or why there are none.
    void updateFigures();

Q_SIGNALS:
    /// A sex box was clicked.
    void listWanted();
    /// This person is to be shown in the list of the marked ones.
    void personWanted(qint32 counter);

private:
    void makeActions();

    StatisticsController &m_controller;
    AgeListModel *m_model;
    std::array<QCheckBox *, 2> m_sexes;
    QTableView *m_view;
    QLabel *m_figures;
};

} // namespace kalvenor::statistics
