// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/searchbar.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "platform/desktop/lineicon.h"
#include "settings/preview/pageview.h"
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

constexpr int ScanMs = 15;

} // namespace

SearchBar::SearchBar(PageView &view, language::Sprachmodul &texts, QWidget *parent)
    : QWidget(parent), m_view(view), m_texts(texts), m_entry(new QLineEdit(this)),
      m_previous(makeButton("Rueckwaerts", Text::FindPrevious)), m_next(makeButton("Weiter", Text::FindNext)),
      m_close(makeButton("Suchezu", Text::Close)), m_count(new QLabel(this))
{
    setObjectName(u"Suche"_s);
    m_entry->setObjectName(u"Suchtext"_s);
    m_entry->setClearButtonEnabled(true);
    m_entry->setMaximumWidth(320);
    language::setDesignText(m_entry, Text::FindText);
    m_count->setObjectName(u"Fundstellen"_s);
    m_previous->setIcon(desktop::lineIcon(desktop::LineIcon::Up));
    m_next->setIcon(desktop::lineIcon(desktop::LineIcon::Down));
    m_close->setIcon(desktop::lineIcon(desktop::LineIcon::Clear));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(6, 4, 6, 4);
    row->addWidget(m_entry, 1);
    for (QWidget *widget :
         {static_cast<QWidget *>(m_previous), static_cast<QWidget *>(m_next), static_cast<QWidget *>(m_count)})
        row->addWidget(widget);
    row->addStretch(1);
    row->addWidget(m_close);
    hide();

    m_scan.setInterval(0);
    connect(&m_scan, &QTimer::timeout, this, &SearchBar::advance);
    connect(m_entry, &QLineEdit::textChanged, this, &SearchBar::restart);
    connect(m_previous, &QToolButton::clicked, this, &SearchBar::previous);
    connect(m_next, &QToolButton::clicked, this, &SearchBar::next);
    connect(m_close, &QToolButton::clicked, this, &SearchBar::close);
    showCount();
}

QToolButton *SearchBar::makeButton(const char *name, Text tooltip)
{
    auto *button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    language::setDesignText(button, {}, tooltip);
    return button;
}

void SearchBar::open()
{
    setVisible(true);
    m_entry->setFocus();
    m_entry->selectAll();
    if (m_view.pages() && m_search.needle() != m_entry->text().simplified())
        restart();
}

void SearchBar::close()
{
    m_scan.stop();
    m_search.begin(nullptr, {});
    m_view.setSearch(nullptr);
    showCount();
    hide();
    m_view.setFocus();
}

void SearchBar::restart()
{
    if (!isVisibleTo(parentWidget()))
        return;
    m_from = m_view.currentPage();
    m_shown = false;
    m_search.begin(m_view.pages(), m_entry->text());
    m_view.setSearch(&m_search);
    m_scan.start();
    advance();
}

void SearchBar::advance()
{
    const std::size_t before = m_search.matches().size();
    const bool finished = m_search.advance(ScanMs);
    if (finished)
        m_scan.stop();
    const std::size_t found = m_search.matches().size();
    if (!m_shown && found > 0) {
        const std::size_t first = m_search.firstFrom(m_from);
        if (first < found)
            show(first);
        else if (finished)
            show(0); // none behind the page at hand
    }
    if (found != before)
        m_view.viewport()->update();
    showCount();
}

void SearchBar::next()
{
    go(true);
}

void SearchBar::previous()
{
    go(false);
}

void SearchBar::go(bool forward)
{
    const std::size_t count = m_search.matches().size();
    if (count == 0)
        return;
    const auto at = m_view.shownMatch();
    if (!at)
        show(forward ? 0 : count - 1);
    else
        show(forward ? (*at + 1) % count : (*at + count - 1) % count);
}

void SearchBar::show(std::size_t match)
{
    m_shown = true;
    m_view.showMatch(match);
    showCount();
}

void SearchBar::showCount()
{
    const QLocale locale;
    const auto count = static_cast<qlonglong>(m_search.matches().size());
    QString shown;
    if (count > 0) {
        const QString all = m_texts.text(Text::MatchCount);
        const auto at = m_view.shownMatch();
        shown = all.arg(at ? locale.toString(static_cast<qlonglong>(*at) + 1) + u" / "_s + locale.toString(count)
                           : locale.toString(count));
    } else if (!m_search.needle().isEmpty() && m_search.isFinished()) {
        shown = m_texts.text(Text::NotFound).arg(m_search.needle());
    }
    m_count->setText(shown);
    m_previous->setEnabled(count > 0);
    m_next->setEnabled(count > 0);
}

void SearchBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        go(!event->modifiers().testFlag(Qt::ShiftModifier));
    else
        QWidget::keyPressEvent(event);
}

} // namespace kalvenor::settings
