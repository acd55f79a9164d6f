// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/work.h"
#include "selection/panel/selectioncontroller.h"
#include "statistics/panel/statisticspanel.h"
#include <QObject>

namespace kalvenor::app {

/// Templates in the main window: which one is current, what of it is not saved yet, and which were used last. Each
/// action tells once what goes wrong and then leaves everything as it was.
class TemplateDesk : public QObject {
    Q_OBJECT
public:
    TemplateDesk(data::Session &session, desktop::Work &work, selection::SelectionController &lists,
                 statistics::StatisticsPanel &panel, QObject *parent);

    /// Native path; empty where the statistic belongs to no template.
    const QString &current() const { return m_current; }
    /// Native paths, the latest first; those that are gone are left out.
    QStringList recent() const;
    /// Title or introduction are not as they were saved, opened or cleared.
    bool isModified() const;
    /// There is a template, or something else than was saved, opened or cleared.
    bool canReset() const { return !m_current.isEmpty() || m_panel.statistik() != m_saved; }
    /// Lets the user save what is not saved. False where they want to go back.
    bool mayDiscard();

    void open();
    bool openFile(const QString &nativeFile);
    /// Title, introduction and options of the default template of the program's folder, where there is one. The marks
    /// stay: they are the database's own at the start.
    void openDefault();
    bool save();
    bool saveAs();
    /// Clears title and introduction, takes the options from the settings; asks for what is not saved.
    void reset();
    /// Another database: no template, title or introduction any more; the options stay.
    void startAfresh();

Q_SIGNALS:
    /// Another template is current, or none.
    void currentChanged();
    void said(const QString &text);

private:
    bool perform(const QString &what, const desktop::Work::Task &task);
    void show(const statistics::Statistik &statistik);
    void clearTo(const statistics::Statistik &statistik);
    bool write(const QString &nativeFile);
    void setCurrent(const QString &nativeFile);
    void remember(const QString &nativeFile);
    QString folder() const;

    data::Session &m_session;
    desktop::Work &m_work;
    selection::SelectionController &m_lists;
    statistics::StatisticsPanel &m_panel;
    QString m_current;
    statistics::Statistik m_saved;
};

} // namespace kalvenor::app
