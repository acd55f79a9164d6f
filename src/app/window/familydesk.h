// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/session/session.h"
#include "platform/desktop/work.h"
#include <QObject>

namespace kalvenor::app {

class TemplateDesk;

/// Another family database in the main window, for this run: the host's settings stay as they are. What goes wrong is
/// told once, and the former database is open again.
class FamilyDesk : public QObject {
    Q_OBJECT
public:
    FamilyDesk(data::Session &session, desktop::Work &work, TemplateDesk &templates, QObject *parent);

    /// Asks for what is not saved and for the file.
    void choose();
    bool openFile(const QString &nativeFile);

Q_SIGNALS:
    void said(const QString &text);

private:
    data::Session &m_session;
    desktop::Work &m_work;
    TemplateDesk &m_templates;
};

} // namespace kalvenor::app
