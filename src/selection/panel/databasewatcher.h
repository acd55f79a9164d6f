// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/dao/dao.h"
#include <memory>
#include <QFileSystemWatcher>
#include <QTimer>

namespace kalvenor::selection {

/// Looks out for changes that another program makes to a database file, also by replacing it. The program's own writes
/// do not count.
class DatabaseWatcher : public QObject {
    Q_OBJECT
public:
    explicit DatabaseWatcher(std::shared_ptr<dao::Database> database, QObject *parent = nullptr);

    /// Another database, or the same opened again.
    void watch(std::shared_ptr<dao::Database> database);
    /// Looks at once, for file systems that tell nothing.
    void look();
    /// What the database holds now is known.
    void setSeen();

Q_SIGNALS:
    /// The file is no longer as it was read.
    void changedElsewhere();

private:
    void watchFile();

    std::shared_ptr<dao::Database> m_database;
    quint64 m_seen = 0; ///< generation; others may have read the file anew since
    QFileSystemWatcher m_watcher;
    QTimer m_pause; ///< a program writes more than once
};

} // namespace kalvenor::selection
