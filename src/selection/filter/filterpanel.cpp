// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filter/filterpanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "platform/desktop/lineicon.h"
#include "platform/desktop/problemframe.h"
#include "selection/filter/filterfields.h"
#include <algorithm>
#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QResizeEvent>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

constexpr int TypingPauseMs = 300;
constexpr int LeastFieldsHeight = 90;

/// As high as the fields need at its width, and scrolls them where there is no room for that.
class FoldedArea : public QScrollArea {
public:
    FoldedArea(QWidget *fields, QWidget *parent) : QScrollArea(parent)
    {
        setFrameShape(NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        setWidget(fields);
    }
    QSize sizeHint() const override { return {widget()->minimumSizeHint().width(), widget()->heightForWidth(width())}; }
    QSize minimumSizeHint() const override
    {
        return {widget()->minimumSizeHint().width(), std::min(sizeHint().height(), LeastFieldsHeight)};
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QScrollArea::resizeEvent(event);
        if (event->size().width() != event->oldSize().width())
            fit();
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            fit();
        return QScrollArea::eventFilter(watched, event);
    }

private:
    void fit()
    {
        setMaximumHeight(sizeHint().height());
        updateGeometry();
    }
};

} // namespace

FilterPanel::FilterPanel(language::Sprachmodul &texts, basic::DateOrder order, QWidget *parent)
    : QWidget(parent), m_texts(texts), m_name(new QLineEdit(this)), m_nameFrame(new desktop::ProblemFrame(*m_name)),
      m_more(new QToolButton(this)), m_problem(new desktop::ProblemLabel(this)),
      m_chips(new ConditionChips(texts, this)), m_fields(new FilterFields(texts, order)),
      m_folded(new FoldedArea(m_fields, this))
{
    setObjectName(u"Filter"_s);
    makeSearch();
    m_problem->setObjectName(u"Filterproblem"_s);
    m_folded->hide();
    layOut();

    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, [this] { Q_EMIT wanted(filter(), true); });
    // Not textEdited, which the name's clear button does not send.
    connect(m_name, &QLineEdit::textChanged, this, [this] {
        if (!m_filling)
            later(TypingPauseMs);
    });
    connect(m_name, &QLineEdit::returnPressed, this, &FilterPanel::now);
    connect(m_fields, &FilterFields::filterWanted, this, &FilterPanel::now);
    connect(m_fields, &FilterFields::changed, this, [this](bool typed) {
        showConditions();
        later(typed ? TypingPauseMs : 0);
    });
    connect(m_fields, &FilterFields::clearWanted, this, [this] {
        clear();
        Q_EMIT clearWanted();
    });
}

void FilterPanel::makeSearch()
{
    m_name->setObjectName(u"Presse"_s);
    language::setDesignText(m_name->addAction(desktop::lineIcon(desktop::LineIcon::Find), QLineEdit::LeadingPosition),
                            Text::SearchNames);
    m_name->setClearButtonEnabled(true);
    language::setDesignText(m_name, Text::SearchNames, Text::FilterNameTip);
    m_name->setAccessibleName(m_texts.text(Text::SearchNames));
    m_more->setObjectName(u"Mehrfilter"_s);
    m_more->setCheckable(true);
    m_more->setIcon(desktop::lineIcon(desktop::LineIcon::Funnel));
    m_more->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_more->setFocusPolicy(Qt::StrongFocus);
    language::setDesignText(m_more, Text::Filter, Text::FilterMoreTip);
    connect(m_more, &QToolButton::toggled, this, &FilterPanel::setUnfolded);
}

void FilterPanel::layOut()
{
    auto *search = new QHBoxLayout;
    search->addWidget(m_name, 1);
    search->addWidget(m_more);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(search);
    column->addWidget(m_problem);
    column->addWidget(m_chips);
    column->addWidget(m_folded);
    setTabOrder(m_name, m_more);
    setTabOrder(m_more, m_chips);
    setTabOrder(m_chips, &m_fields->firstControl());
}

QWidget &FilterPanel::lastControl()
{
    return m_fields->lastControl();
}

void FilterPanel::setUnfolded(bool unfold)
{
    if (!unfold && m_folded->isAncestorOf(QApplication::focusWidget()))
        m_more->setFocus();
    m_folded->setVisible(unfold);
    m_more->setChecked(unfold);
    showConditions();
    Q_EMIT unfolded(unfold);
}

void FilterPanel::showConditions()
{
    std::vector<Condition> set = m_fields->conditions();
    m_more->setText(set.empty() ? m_texts.text(Text::Filter) : m_texts.text(Text::FilterCount).arg(set.size()));
    for (Condition &condition : set)
        condition.lift = [this, lift = condition.lift] {
            m_more->setFocus(); // the chip goes
            lift();
        };
    m_chips->setConditions(m_folded->isHidden() ? set : std::vector<Condition>());
}

void FilterPanel::setProblem(const QString &why)
{
    m_nameFrame->setProblem(why);
    m_problem->setProblem(why);
}

Filter FilterPanel::filter() const
{
    Filter filter;
    filter.Presse = m_name->text();
    m_fields->read(filter);
    return filter;
}

void FilterPanel::setFilter(const Filter &filter)
{
    m_pause.stop();
    setPattern(filter.Presse);
    m_fields->show(filter);
    showConditions();
    setProblem({});
}

bool FilterPanel::isEmpty() const
{
    const Filter now = filter();
    const auto off = [](int box) {
        return box == 0;
    };
    return now.Presse.trimmed().isEmpty() && std::ranges::all_of(now.Geschlechtfilter, off) &&
           std::ranges::all_of(now.Datumfilter, off);
}

void FilterPanel::setPattern(const QString &pattern)
{
    const QScopedValueRollback quiet(m_filling, true);
    if (m_name->text() != pattern)
        m_name->setText(pattern);
}

QList<QWidget *> FilterPanel::entries() const
{
    return QList<QWidget *>{m_name} + m_fields->entries();
}

void FilterPanel::focusName()
{
    m_name->setFocus(Qt::ShortcutFocusReason);
    m_name->selectAll();
}

void FilterPanel::later(int milliseconds)
{
    m_pause.start(milliseconds);
    Q_EMIT edited();
}

void FilterPanel::now()
{
    m_pause.stop();
    Q_EMIT wanted(filter(), false);
}

void FilterPanel::flush()
{
    if (!m_pause.isActive())
        return;
    m_pause.stop();
    Q_EMIT wanted(filter(), true);
}

void FilterPanel::clear()
{
    Filter empty;
    empty.Filterliste = filter().Filterliste;
    setFilter(empty);
}

} // namespace kalvenor::selection
