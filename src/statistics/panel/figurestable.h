// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "statistics/figures/grafik.h"
#include <array>
#include <QFrame>

class QGridLayout;
class QLabel;
class QPushButton;

namespace kalvenor::desktop {
class ElidedLabel;
}

namespace kalvenor::statistics {

/// The figures below the chart: number and average of men, women and all, lowest and highest age, who is left out.
/// No text of it keeps the window wide.
class FiguresTable : public QFrame {
    Q_OBJECT
public:
    explicit FiguresTable(data::Session &session, QWidget *parent = nullptr);
    void setFigures(const Grafikzahlen &figures);

Q_SIGNALS:
    /// The list of those who are left out is wanted.
    void leftOutWanted();

private:
    void addHeading(QGridLayout &grid, int row, int column, language::Text caption, int columns = 1);
    QLabel *addFigure(QGridLayout &grid, int row, int column, const QString &name, language::Text what,
                      language::Text group = language::Text::None);

    data::Session &m_session;
    std::array<QLabel *, 3> m_counts{};   ///< men, women, all
    std::array<QLabel *, 3> m_averages{}; ///< the same
    QLabel *m_range;
    QLabel *m_withoutDate;
    desktop::ElidedLabel *m_leftOut; ///< the others who are left out, and how many of all are of unknown sex
    QPushButton *m_who;
};

} // namespace kalvenor::statistics
