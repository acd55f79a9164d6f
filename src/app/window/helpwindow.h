// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/sprache.h"
#include <QList>
#include <QString>
#include <QTextCursor>
#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;
class QToolBar;

namespace kalvenor::app {

/// The manual: contents, text, search. German where the interface is, English elsewhere.
class HelpWindow : public QWidget {
    Q_OBJECT
public:
    HelpWindow(language::Sprachmodul &language, const host::Host &host, QWidget *parent = nullptr);

    /// Shows the window at this topic, an anchor of the manual; "Hilfe", and one it lacks, is the beginning.
    void showTopic(const QString &topic);

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Section {
        QString anchor;
        int position; ///< of its heading in the text
    };

    QToolBar *makeTools();
    QAction *makeAction(QToolBar *tools, const char *name, language::Text tooltip, const QKeySequence &keys);
    void readContents();
    void goTo(const QString &anchor, qsizetype row);
    void followScrolling();
    void search();
    void goToMatch(qsizetype index);
    void showMatch();

    language::Sprachmodul &m_language;
    const host::Host &m_host;
    QTextBrowser *m_text;
    QListWidget *m_contents;
    QLineEdit *m_search = nullptr;
    QLabel *m_found = nullptr;
    QList<Section> m_sections;
    QList<QTextCursor> m_matches;
    qsizetype m_match = 0; ///< index of the one that is shown
};

} // namespace kalvenor::app
