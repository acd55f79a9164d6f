// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/filter/conditionchips.h"
#include "selection/filter/filtern.h"
#include <array>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace kalvenor::desktop {
class ProblemFrame;
class ProblemLabel;
} // namespace kalvenor::desktop

namespace kalvenor::selection {

/// The filter controls beside the name: sex, dates, the list that is narrowed. Beside each bound stands how it is read,
/// or in which `order` it is to be typed; what is wrong with it is told below.
class FilterFields : public QWidget {
    Q_OBJECT
public:
    FilterFields(language::Sprachmodul &texts, basic::DateOrder order, QWidget *parent = nullptr);

    /// The controls as they stand, into their parts of the filter; date texts with the mask's underscores.
    void read(Filter &filter) const;
    void show(const Filter &filter);
    /// What the controls ask, a condition each.
    std::vector<Condition> conditions();
    /// Those that take typing.
    QList<QWidget *> entries() const;
    QWidget &firstControl();
    QWidget &lastControl();

Q_SIGNALS:
    /// By the user.
    void changed(bool typed);
    void filterWanted();
    void clearWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeBoxes();
    void makeBounds();
    void layOut();
    void showHowRead(std::size_t bound);
    void showDateProblems();
    void tickADate();

    language::Sprachmodul &m_texts;
    basic::DateOrder m_order;
    std::array<QCheckBox *, 2> m_sexes;
    std::array<QCheckBox *, 3> m_dates;
    std::array<QLineEdit *, 2> m_bounds;
    std::array<desktop::ProblemFrame *, 2> m_boundFrames;
    std::array<QLabel *, 2> m_read; ///< how the bounds are read
    desktop::ProblemLabel *m_dateProblem;
    std::array<QRadioButton *, 2> m_lists;
    QPushButton *m_filter;
    QPushButton *m_clear;
    bool m_filling = false; ///< by the program, not by the user
};

} // namespace kalvenor::selection
