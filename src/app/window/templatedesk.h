// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/start/program.h"
#include "platform/desktop/work.h"
#include "selection/panel/selectioncontroller.h"
#include "selection/templates/databaseswitch.h"
#include "statistics/panel/statisticspanel.h"
#include <QObject>

namespace kalvenor::app {

/// Templates in the main window: which one is current, what of it is not saved yet, and which were used last. Each
/// action tells once what goes wrong and then leaves everything as it was.
class TemplateDesk : public QObject {
    Q_OBJECT
public:
    struct Parts {
        Program &program;
        desktop::Work &work;
        selection::SelectionController &lists;
        statistics::StatisticsController &statistics;
        statistics::StatisticsPanel &panel;
    };
    explicit TemplateDesk(const Parts &parts, QObject *parent = nullptr);

    /// Native path; empty where the statistic belongs to no template.
    const QString &current() const { return m_current; }
    /// Native paths, the latest first; those that are gone are left out.
    QStringList recent() const;
    /// Title or introduction are not as they were saved, opened or cleared.
    bool isModified() const;
    /// There is a template, or something else than was saved, opened or cleared.
    bool canReset() const { return !m_current.isEmpty() || m_parts.panel.statistik() != m_saved; }
    /// Lets the user save what is not saved. False where they want to go back.
    bool mayDiscard();

    /// What changing the family database works with: lists let go of it, the event kinds are loaded again.
    selection::DatabaseServices databaseServices();

    void open();
    bool openFile(const QString &nativeFile);
    /// The default template of the program's folder, where there is one.
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
    /// Databases were closed and opened again, for a template or through databaseServices().
    void reopened();
    void said(const QString &text);

private:
    QString text(qint16 id, const QString &germanText) const;
    bool perform(const QString &what, const desktop::Work::Task &task);
    void show(const statistics::Statistik &statistik);
    void clearTo(const statistics::Statistik &statistik);
    bool write(const QString &nativeFile);
    void setCurrent(const QString &nativeFile);
    void remember(const QString &nativeFile);
    QString folder() const;

    Parts m_parts;
    QString m_current;
    statistics::Statistik m_saved;
};

} // namespace kalvenor::app
