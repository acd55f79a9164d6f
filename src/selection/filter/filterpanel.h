// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "selection/filter/filtern.h"
#include <QTimer>
#include <QWidget>

class QLineEdit;
class QToolButton;

namespace kalvenor::desktop {
class ProblemFrame;
class ProblemLabel;
} // namespace kalvenor::desktop
namespace kalvenor::language {
class Sprachmodul;
}

namespace kalvenor::selection {

class ConditionChips;
class FilterFields;

/// The filter: the name as a search field, the other controls folded below it; those that are set stand there as chips
/// while they are folded. Typing and ticking filter by themselves after a pause; Return and the button at once. What is
/// wrong is told beside its field.
class FilterPanel : public QWidget {
    Q_OBJECT
public:
    /// `order`: in which dates are typed.
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
    /// To the name, its text selected.
    void focusName();
    /// What was typed and waits for its pause is wanted now.
    void flush();
    /// Tells beside the name why the filter cannot be carried out; empty: it could.
    void setProblem(const QString &why);
    /// Empties all controls but the list's choice.
    void clear();
    /// Which Tab reaches last.
    QWidget &lastControl();

public Q_SLOTS:
    void setUnfolded(bool unfolded);

Q_SIGNALS:
    /// Something is changing; wanted() follows.
    void edited();
    /// `typed`: without Return or button.
    void wanted(const Filter &filter, bool typed);
    void clearWanted();
    void unfolded(bool unfolded);

private:
    void makeSearch();
    void layOut();
    void showConditions();
    void later(int milliseconds);
    void now();

    language::Sprachmodul &m_texts;
    QLineEdit *m_name;
    desktop::ProblemFrame *m_nameFrame;
    QToolButton *m_more;
    desktop::ProblemLabel *m_problem;
    ConditionChips *m_chips;
    FilterFields *m_fields;
    QWidget *m_folded; ///< holds the fields
    QTimer m_pause;
    bool m_filling = false; ///< by the program, not by the user
};

} // namespace kalvenor::selection
