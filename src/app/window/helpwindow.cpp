// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/helpwindow.h"

#include "host/windowplace.h"
#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "platform/desktop/lineicon.h"
#include <algorithm>
#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

static void initHelpResources()
{
    Q_INIT_RESOURCE(help); // a static library's resources are not found by themselves
}

namespace kalvenor::app {

using language::Text;

namespace {

const QString Beginning = u"Hilfe"_s;
constexpr int SectionHeading = 2;

/// The name of the anchor that a heading holds, "" where there is none.
QString anchorOf(const QTextBlock &block)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QStringList names = it.fragment().charFormat().anchorNames();
        if (!names.isEmpty())
            return names.first();
    }
    return {};
}

} // namespace

HelpWindow::HelpWindow(language::Sprachmodul &language, const host::Host &host, QWidget *parent)
    : QWidget(parent, Qt::Window), m_language(language), m_host(host), m_text(new QTextBrowser(this)),
      m_contents(new QListWidget(this))
{
    initHelpResources();
    setObjectName(u"Hilfefenster"_s);
    language::setDesignText(this, Text::Manual);
    m_text->setObjectName(u"Hilfetext"_s);
    m_text->document()->setDocumentMargin(16);
    language::setDesignText(m_text, Text::Manual);
    m_contents->setObjectName(u"Inhalt"_s);
    language::setDesignText(m_contents, Text::Contents);
    m_contents->setSpacing(3);
    m_contents->setWordWrap(true);
    m_contents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto *splitter = new QSplitter(this);
    splitter->addWidget(m_contents);
    splitter->addWidget(m_text);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({220, 680});
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(makeTools());
    layout->addWidget(splitter, 1);
    language::formuebersetzen(*this, m_language, m_host);
    unsetCursor();

    m_text->setSource(QUrl(u"qrc:/help/%1.html#%2"_s.arg(
        language::anzeigesprache(m_host).language() == QLocale::German ? u"de" : u"en", Beginning)));
    readContents();
    connect(m_contents, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            goTo(m_sections[row].anchor, row);
    });
    connect(m_text->verticalScrollBar(), &QScrollBar::valueChanged, this, &HelpWindow::followScrolling);
    new host::WindowPlace(*this, host, u"Anleitung"_s, {920, 660});
    m_text->setFocus();
}

QAction *HelpWindow::makeAction(QToolBar *tools, const char *name, Text tooltip, const QKeySequence &keys)
{
    QAction *action = tools->addAction(QString());
    action->setObjectName(QLatin1String(name));
    // The tooltip is the caption too, for those who hear the button.
    language::setDesignText(action, tooltip, tooltip);
    action->setShortcut(keys);
    return action;
}

QToolBar *HelpWindow::makeTools()
{
    auto *tools = new QToolBar(this);
    QAction *back = makeAction(tools, "Zurueck", Text::HelpBack, QKeySequence(Qt::ALT | Qt::Key_Left));
    QAction *forward = makeAction(tools, "Vorwaerts", Text::HelpForward, QKeySequence(Qt::ALT | Qt::Key_Right));
    back->setIcon(desktop::lineIcon(desktop::LineIcon::Left));
    forward->setIcon(desktop::lineIcon(desktop::LineIcon::Right));
    connect(back, &QAction::triggered, m_text, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, m_text, &QTextBrowser::forward);
    connect(m_text, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_text, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    back->setEnabled(false);
    forward->setEnabled(false);
    tools->addSeparator();
    QAction *smaller = makeAction(tools, "Kleiner", Text::SmallerText, QKeySequence::ZoomOut);
    QAction *larger = makeAction(tools, "Groesser", Text::LargerText, QKeySequence::ZoomIn);
    smaller->setIconText(u"A−"_s);
    larger->setIconText(u"A+"_s);
    connect(smaller, &QAction::triggered, m_text, [this] { m_text->zoomOut(); });
    connect(larger, &QAction::triggered, m_text, [this] { m_text->zoomIn(); });
    tools->addSeparator();

    m_search = new QLineEdit(tools);
    m_search->setObjectName(u"Suche"_s);
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(280);
    language::setDesignText(m_search, Text::SearchManual);
    tools->addWidget(m_search);
    QAction *previous = makeAction(tools, "Vorige", Text::PreviousMatch, QKeySequence(Qt::SHIFT | Qt::Key_F3));
    QAction *next = makeAction(tools, "Naechste", Text::NextMatch, QKeySequence(Qt::Key_F3));
    previous->setIconText(u"▲"_s);
    next->setIconText(u"▼"_s);
    m_found = new QLabel(tools);
    m_found->setObjectName(u"Fundstelle"_s);
    m_found->setContentsMargins(8, 0, 8, 0);
    m_found->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    tools->addWidget(m_found);
    connect(m_search, &QLineEdit::textChanged, this, &HelpWindow::search);
    connect(m_search, &QLineEdit::returnPressed, next, &QAction::trigger);
    connect(next, &QAction::triggered, this, [this] { goToMatch(m_match + 1); });
    connect(previous, &QAction::triggered, this, [this] { goToMatch(m_match - 1); });
    auto *find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, this, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    addAction(find);
    return tools;
}

/// The sections of the text, by their headings.
void HelpWindow::readContents()
{
    for (QTextBlock block = m_text->document()->begin(); block.isValid(); block = block.next()) {
        const QString anchor = anchorOf(block);
        if (block.blockFormat().headingLevel() != SectionHeading || anchor.isEmpty())
            continue;
        m_sections.append({anchor, block.position()});
        m_contents->addItem(block.text());
    }
}

/// The section is the one at the top, save near the end, where the text cannot be scrolled that far.
void HelpWindow::goTo(const QString &anchor, qsizetype row)
{
    QUrl url = m_text->source();
    url.setFragment(anchor);
    m_text->setSource(url);
    const QSignalBlocker quiet(m_contents);
    m_contents->setCurrentRow(static_cast<int>(row));
}

void HelpWindow::showTopic(const QString &topic)
{
    show();
    raise();
    activateWindow();
    const auto section = std::find_if(m_sections.begin(), m_sections.end(),
                                      [&](const Section &candidate) { return candidate.anchor == topic; });
    if (section == m_sections.end())
        goTo(Beginning, 0);
    else
        goTo(topic, section - m_sections.begin());
}

/// Selects the section whose text is at the top.
void HelpWindow::followScrolling()
{
    const int top =
        m_text->cursorForPosition(QPoint(m_text->viewport()->width() / 2, m_text->fontMetrics().height())).position();
    int row = -1;
    while (row + 1 < m_sections.size() && m_sections[row + 1].position <= top)
        ++row;
    const QSignalBlocker quiet(m_contents);
    m_contents->setCurrentRow(row);
}

void HelpWindow::search()
{
    m_matches.clear();
    const QString wanted = m_search->text();
    for (QTextCursor at = m_text->document()->find(wanted); !wanted.isEmpty() && !at.isNull();
         at = m_text->document()->find(wanted, at))
        m_matches.append(at);
    // The first one from where the reader is.
    const int here = m_text->cursorForPosition({}).position();
    const auto first = std::find_if(m_matches.begin(), m_matches.end(),
                                    [here](const QTextCursor &match) { return match.selectionStart() >= here; });
    goToMatch(first == m_matches.end() ? 0 : first - m_matches.begin());
}

void HelpWindow::goToMatch(qsizetype index)
{
    if (!m_matches.isEmpty())
        m_match = (index + m_matches.size()) % m_matches.size();
    showMatch();
}

void HelpWindow::showMatch()
{
    QList<QTextEdit::ExtraSelection> marks;
    for (const QTextCursor &match : std::as_const(m_matches)) {
        QTextCharFormat format;
        format.setBackground(QColor(255, 225, 120));
        format.setForeground(Qt::black);
        marks.append({match, format});
    }
    if (m_matches.isEmpty()) {
        QTextCursor none = m_text->textCursor();
        none.clearSelection();
        m_text->setTextCursor(none);
        m_found->setText(m_search->text().isEmpty() ? QString() : m_language.text(Text::HelpNothingFound));
    } else {
        marks[m_match].format.setBackground(palette().highlight());
        marks[m_match].format.setForeground(palette().highlightedText());
        QTextCursor cursor = m_matches[m_match];
        cursor.clearSelection();
        m_text->setTextCursor(cursor);
        m_text->ensureCursorVisible();
        m_found->setText(m_language.text(Text::CountOf).arg(m_match + 1).arg(m_matches.size()));
    }
    m_text->setExtraSelections(marks);
}

void HelpWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // The main window may be on top of all others, and this one belongs before it.
    if (m_host.staysOnTop())
        m_host.fensteroben(windowHandle(), -1, true);
}

void HelpWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (m_search->text().isEmpty())
        close();
    else
        m_search->clear();
}

} // namespace kalvenor::app
