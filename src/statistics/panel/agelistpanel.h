// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/panel/statisticscontroller.h"
#include <array>
#include <QWidget>

class QCheckBox;
class QLabel;
class QPushButton;
class QTableView;

namespace kalvenor::statistics {

class AgeListModel;
class EmptyState;

/// The age list with the sex boxes `geschlechtalter`(0) and (1).
class AgeListPanel : public QWidget {
    Q_OBJECT
public:
    explicit AgeListPanel(StatisticsController &controller, QWidget *parent = nullptr);

    std::array<QCheckBox *, 2> sexBoxes() const { return m_sexes; }
    /// The lines that are selected, a line each, to the clipboard.
    void copy() const;
    /// Of the list only the persons of one figure of the chart, which `what` names ("Men, century of birth 1800-99"),
    /// and ways to mark just them and to show the whole list again.
    void showOnly(const QString &what, const Saeule &persons);
    void focusFirst();
    /// Nobody can be unmarked.
    void setReadOnly(bool readOnly);

Q_SIGNALS:
    /// A sex box was clicked.
    void listWanted();
    /// This person is to be shown in the list of the marked ones.
    void personWanted(qint32 counter);
    /// These are no longer to be marked.
    void unmarkWanted(const std::vector<qint32> &counters);
    void leftOutWanted();
    void personsWanted();

private:
    void makeActions();
    QWidget *makeOnlyBar();
    /// How many lines there are, or why there are none.
    void updateFigures();
    void updateMarkOnly();
    void showState();

    StatisticsController &m_controller;
    AgeListModel *m_model;
    std::array<QCheckBox *, 2> m_sexes;
    QTableView *m_view;
    QLabel *m_figures;
    QWidget *m_onlyBar; ///< visible while not the whole list is shown
    QLabel *m_onlyWhat;
    QPushButton *m_markOnly;
    bool m_readOnly = false;
    std::vector<qint32> m_others; ///< marked, but not of the figure
    EmptyState *m_empty;
};

} // namespace kalvenor::statistics
