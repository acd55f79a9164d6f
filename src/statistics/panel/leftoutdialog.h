// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "statistics/ages/auslassung.h"
#include <QDialog>
#include <vector>

class QTableView;

namespace kalvenor::statistics {

/// Who is left out of the statistic, and why. Accepted where one of them is to be shown in the list of the marked.
class LeftOutDialog : public QDialog {
    Q_OBJECT
public:
    LeftOutDialog(data::Session &session, const std::vector<Ausgelassener> &persons, QWidget *parent = nullptr);
    /// The person to be shown; valid once the dialog is accepted.
    qint32 chosen() const;

private:
    QString titleText(data::Session &session) const;
    void copy() const;

    const std::vector<Ausgelassener> &m_persons;
    QTableView *m_view;
};

} // namespace kalvenor::statistics
