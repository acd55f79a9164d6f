// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "platform/desktop/work.h"
#include "statistics/ages/altersliste.h"
#include "statistics/ages/auslassung.h"
#include "statistics/figures/grafik.h"
#include <QElapsedTimer>
#include <QObject>

namespace kalvenor::statistics {

/// Age list and figures as they were computed last, and how up to date they are, without a window. A failure is told
/// once, in a message box.
class StatisticsController : public QObject {
    Q_OBJECT
public:
    StatisticsController(data::Session &session, desktop::Work &work, QObject *parent = nullptr);

    data::Session &session() const { return m_session; }
    desktop::Work &work() const { return m_work; }
    const Altersliste &list() const { return m_list; }
    const Grafikzahlen &figures() const { return m_figures; }
    /// Another number for every list and figures that were computed.
    quint64 results() const { return m_results; }

    /// Rebuilds the age list. False where it was not begun, failed or was cancelled: what was added so far stays.
    bool alterslistenausgabe(const GeschlechtAlter &geschlechtalter);
    /// Computes the figures and the chart's table. Where it fails or is cancelled, the old ones stay, as outdated ones.
    bool grafikermitteln(const Statistik &statistik);

    /// Who is behind a figure of the chart; who is left out. Nothing where it was not begun, failed or was cancelled.
    std::optional<Saeule> saeule(const Statistik &statistik, Gruppe gruppe, int jahrhundert);
    std::optional<std::vector<Ausgelassener>> auslassungen();

    /// Whether the list, the figures are what marks, persons and the controls last asked for give.
    bool isListCurrent() const { return m_listCurrent; }
    bool areFiguresCurrent() const { return m_figuresCurrent; }
    /// How many persons were marked when the list was computed.
    qint64 markedCount() const { return m_marked; }
    /// Marks or persons have changed: both are to be computed again.
    void forget() { m_listCurrent = m_figuresCurrent = false; }
    /// Whether the next computation may come unasked: the last one was short and neither failed nor was cancelled.
    bool mayFollow() const { return m_mayFollow; }

Q_SIGNALS:
    void listCleared();
    /// While the list is built, some times a second, and at its end.
    void listGrew();
    void figuresChanged();
    void said(const QString &text);

private:
    bool perform(const QString &what, const desktop::Work::Task &task);

    data::Session &m_session;
    desktop::Work &m_work;
    Altersliste m_list;
    Grafikzahlen m_figures;
    qint64 m_marked = 0;
    quint64 m_results = 1;
    bool m_listCurrent = false;
    bool m_figuresCurrent = false;
    bool m_mayFollow = true;
};

} // namespace kalvenor::statistics
