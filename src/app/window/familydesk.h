// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/start/program.h"
#include "platform/desktop/work.h"
#include "selection/panel/selectioncontroller.h"
#include "statistics/panel/statisticscontroller.h"
#include <QObject>

namespace kalvenor::app {

class TemplateDesk;

/// Another family database in the main window, for this run: the host's settings stay as they are. What goes wrong is
/// told once, and the former database is open again.
class FamilyDesk : public QObject {
    Q_OBJECT
public:
    struct Parts {
        Program &program;
        desktop::Work &work;
        selection::SelectionController &lists;
        statistics::StatisticsController &statistics;
        TemplateDesk &templates;
    };
    explicit FamilyDesk(const Parts &parts, QObject *parent = nullptr);

    /// Asks for what is not saved and for the file.
    void choose();
    bool openFile(const QString &nativeFile);

Q_SIGNALS:
    void said(const QString &text);

private:
    QString text(qint16 id, const QString &germanText) const;
    void goOver(const QString &familienpfad);

    Parts m_parts;
};

} // namespace kalvenor::app
