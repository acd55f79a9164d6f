// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include "settings/preview/pagesearch.h"
#include <optional>
#include <QTimer>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace kalvenor::settings {

class PageView;

/// Searches the pages of a view while the user types. Hidden until it is opened. Its texts are design-time texts.
class SearchBar : public QWidget {
    Q_OBJECT
public:
    SearchBar(PageView &view, language::Sprachmodul &texts, QWidget *parent = nullptr);

    void open();
    void close();
    void next();
    void previous();
    /// Searches the view's new pages for the same.
    void restart();
    const PageSearch &search() const { return m_search; }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QToolButton *makeButton(const char *name, language::Text tooltip);
    void advance();
    void go(bool forward);
    void show(std::size_t match);
    void showCount();

    PageView &m_view;
    language::Sprachmodul &m_texts;
    QLineEdit *m_entry;
    QToolButton *m_previous, *m_next, *m_close;
    QLabel *m_count;
    PageSearch m_search;
    QTimer m_scan;        ///< goes on with the search between two rounds of events
    int m_from = 0;       ///< page from which the first match is shown
    bool m_shown = false; ///< a match was shown since the search began
};

} // namespace kalvenor::settings
