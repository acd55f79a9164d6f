// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/filter/filtern.h"
#include <array>
#include <QGroupBox>
#include <QTimer>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace kalvenor::language {
class Sprachmodul;
}

namespace kalvenor::selection {

/// The filter controls. Beside each date stands how it is read, or in which `order` it is to be typed. Typing and
/// ticking filter by themselves after a pause; Return and the button at once.
class FilterPanel : public QGroupBox {
    Q_OBJECT
public:
    FilterPanel(language::Sprachmodul &texts, basic::DateOrder order, QWidget *parent = nullptr);

    /// The controls as they stand; date texts with the mask's underscores.
    Filter filter() const;
    void setFilter(const Filter &filter);
    /// Whether any control but the list's choice says something.
    bool isEmpty() const;
    /// The pattern as it was used.
    void setPattern(const QString &pattern);
    /// Entry fields that take typing while a filter runs.
    QList<QWidget *> entries() const;
    /// The first text that was begun and is no date, else empty.
    QString unsoundDate() const;
    /// To the name, its text selected.
    void focusName();
    /// What was typed and waits for its pause is wanted now.
    void flush();

Q_SIGNALS:
    /// Something is changing; wanted() follows.
    void edited();
    /// `typed`: without Return or button.
    void wanted(const Filter &filter, bool typed);
    void clearWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    void layOut();
    void showHowRead(std::size_t bound);
    void later(int milliseconds);
    void now();
    void clear();

    language::Sprachmodul &m_texts;
    basic::DateOrder m_order;
    QLineEdit *m_name;
    std::array<QCheckBox *, 2> m_sexes;
    std::array<QCheckBox *, 3> m_dates;
    std::array<QLineEdit *, 2> m_bounds;
    std::array<QLabel *, 2> m_read; ///< how the bounds are read
    std::array<QRadioButton *, 2> m_lists;
    QPushButton *m_filter;
    QPushButton *m_clear;
    QTimer m_pause;
    bool m_filling = false; ///< by the program, not by the user
};

} // namespace kalvenor::selection
