// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/panel/databasewatcher.h"

#include "platform/basic/error.h"
#include <chrono>
#include <QFileInfo>
#include <utility>

namespace kalvenor::selection {

using namespace std::chrono_literals;

DatabaseWatcher::DatabaseWatcher(std::shared_ptr<dao::Database> database, QObject *parent) : QObject(parent)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(300ms);
    connect(&m_pause, &QTimer::timeout, this, &DatabaseWatcher::look);
    const auto changed = [this] {
        watchFile();
        m_pause.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, changed);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, changed);
    watch(std::move(database));
}

void DatabaseWatcher::watch(std::shared_ptr<dao::Database> database)
{
    const QStringList former = m_watcher.files() + m_watcher.directories();
    if (!former.isEmpty())
        m_watcher.removePaths(former);
    m_database = std::move(database);
    m_watcher.addPath(QFileInfo(m_database->file()).absolutePath());
    watchFile();
    setSeen();
}

void DatabaseWatcher::setSeen()
{
    m_seen = m_database->generation();
}

void DatabaseWatcher::watchFile()
{
    // A file that was replaced is forgotten by the watcher.
    if (!m_watcher.files().contains(m_database->file()) && QFileInfo::exists(m_database->file()))
        m_watcher.addPath(m_database->file());
}

void DatabaseWatcher::look()
{
    bool changed = false;
    try {
        changed = m_database->isOpen() && (m_database->isStale() || m_database->generation() != m_seen);
    } catch (const basic::Error &) {
        // While a file is being replaced there is none for a moment. Whoever reads it next says what is wrong.
        return;
    }
    if (changed)
        Q_EMIT changedElsewhere();
}

} // namespace kalvenor::selection
