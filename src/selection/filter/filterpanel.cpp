// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filter/filterpanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "platform/desktop/lineicon.h"
#include <algorithm>
#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

constexpr int TypingPauseMs = 300;
constexpr qint64 LongDay = 36799; // 30 September 2000
const QString EmptyDate = u"__-__-____"_s;

template <typename Control>
Control *made(QWidget *parent, const char *name, int index, Text caption, Text tooltip)
{
    auto *control = new Control(parent);
    control->setObjectName(u"%1_%2"_s.arg(QLatin1String(name)).arg(index));
    language::setDesignText(control, caption, tooltip);
    return control;
}

QLabel *labelFor(QWidget *buddy, QWidget *parent, Text caption)
{
    auto *label = new QLabel(parent);
    language::setDesignText(label, caption);
    label->setBuddy(buddy);
    return label;
}

QHBoxLayout *rowOf(std::initializer_list<QWidget *> widgets)
{
    auto *row = new QHBoxLayout;
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    row->addStretch(1);
    return row;
}

} // namespace

FilterPanel::FilterPanel(language::Sprachmodul &texts, basic::DateOrder order, QWidget *parent)
    : QGroupBox(parent), m_texts(texts), m_order(order)
{
    setObjectName(u"Filter"_s);
    language::setDesignText(this, Text::Filter);
    build();
    layOut();

    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, [this] { Q_EMIT wanted(filter(), true); });
    for (QLineEdit *entry : {m_name, m_bounds[0], m_bounds[1]}) {
        // Not textEdited, which the name's clear button does not send.
        connect(entry, &QLineEdit::textChanged, this, [this] {
            if (!m_filling)
                later(TypingPauseMs);
        });
        connect(entry, &QLineEdit::returnPressed, this, &FilterPanel::now);
    }
    for (QAbstractButton *box : std::initializer_list<QAbstractButton *>{m_sexes[0], m_sexes[1], m_dates[0], m_dates[1],
                                                                         m_dates[2], m_lists[0]})
        connect(box, &QAbstractButton::toggled, this, [this] {
            if (!m_filling)
                later(0);
        });
    connect(m_filter, &QPushButton::clicked, this, &FilterPanel::now);
    connect(m_clear, &QPushButton::clicked, this, &FilterPanel::clear);
}

void FilterPanel::build()
{
    m_name = new QLineEdit(this);
    m_name->setObjectName(u"Presse"_s);
    m_name->setClearButtonEnabled(true);
    language::setDesignText(m_name, {}, Text::FilterNameTip);
    m_sexes = {made<QCheckBox>(this, "Geschlechtfilter", 0, Text::FilterMen, Text::FilterMenTip),
               made<QCheckBox>(this, "Geschlechtfilter", 1, Text::FilterWomen, Text::FilterWomenTip)};
    constexpr Text incomplete = Text::IncompleteDatesTip;
    m_dates = {made<QCheckBox>(this, "Datumfilter", 0, Text::FilterBirth, incomplete),
               made<QCheckBox>(this, "Datumfilter", 1, Text::FilterDeath, incomplete),
               made<QCheckBox>(this, "Datumfilter", 2, Text::FilterChange, Text::None)};
    const bool dayFirst = m_order == basic::DateOrder::DayMonthYear;
    m_bounds = {made<QLineEdit>(this, "Presse_Datum", 0, Text::None,
                                dayFirst ? Text::FilterFromTip : Text::FilterFromTipMonthFirst),
                made<QLineEdit>(this, "Presse_Datum", 1, Text::None,
                                dayFirst ? Text::FilterToTip : Text::FilterToTipMonthFirst)};
    for (QLineEdit *bound : m_bounds) {
        bound->setInputMask(u"00-00-0000;_"_s);
        bound->setFixedWidth(bound->fontMetrics().horizontalAdvance(u"00-00-0000"_s) +
                             3 * bound->fontMetrics().averageCharWidth() + 8);
        bound->installEventFilter(this);
    }
    for (std::size_t i = 0; i < m_read.size(); ++i) {
        m_read[i] = new QLabel(this);
        m_read[i]->setObjectName(u"Gelesen_%1"_s.arg(i));
        // Wide enough for every date, so that nothing moves while one is typed.
        m_read[i]->setMinimumWidth(m_read[i]->fontMetrics().horizontalAdvance(m_texts.dayInWords(LongDay)));
        showHowRead(i);
        connect(m_bounds[i], &QLineEdit::textChanged, this, [this, i] { showHowRead(i); });
    }
    m_lists = {made<QRadioButton>(this, "Filterliste", 0, Text::FilterUnmarked, Text::FilterListTip),
               made<QRadioButton>(this, "Filterliste", 1, Text::FilterMarked, Text::FilterListTip)};
    m_lists[0]->setChecked(true);
    m_filter = new QPushButton(this);
    m_filter->setObjectName(u"Filtern"_s);
    m_filter->setIcon(desktop::lineIcon(desktop::LineIcon::Find));
    m_filter->setAutoDefault(false);
    language::setDesignText(m_filter, Text::FilterApply);
    m_clear = new QPushButton(this);
    m_clear->setObjectName(u"Filteraufheben"_s);
    m_clear->setIcon(desktop::lineIcon(desktop::LineIcon::Clear));
    m_clear->setAutoDefault(false);
    language::setDesignText(m_clear, Text::FilterClear);
}

void FilterPanel::layOut()
{
    auto *name = new QHBoxLayout;
    name->addWidget(m_name, 1);
    name->addWidget(m_filter);
    name->addWidget(m_clear);
    auto *from = labelFor(m_bounds[0], this, Text::FilterFrom);
    auto *to = labelFor(m_bounds[1], this, Text::FilterTo);

    auto *grid = new QGridLayout(this);
    grid->addWidget(labelFor(m_name, this, Text::FilterName), 0, 0);
    grid->addLayout(name, 0, 1);
    grid->addWidget(labelFor(nullptr, this, Text::Sex), 1, 0);
    grid->addLayout(rowOf({m_sexes[0], m_sexes[1]}), 1, 1);
    grid->addWidget(labelFor(nullptr, this, Text::FilterPeriod), 2, 0);
    grid->addLayout(rowOf({m_dates[0], m_dates[1], m_dates[2]}), 2, 1);
    grid->addLayout(rowOf({from, m_bounds[0], m_read[0], to, m_bounds[1], m_read[1]}), 3, 1);
    grid->addWidget(labelFor(nullptr, this, Text::FilterList), 4, 0);
    grid->addLayout(rowOf({m_lists[0], m_lists[1]}), 4, 1);
    grid->setColumnStretch(1, 1);

    const QList<QWidget *> order{m_name,     m_filter,   m_clear,     m_sexes[0],  m_sexes[1], m_dates[0],
                                 m_dates[1], m_dates[2], m_bounds[0], m_bounds[1], m_lists[0], m_lists[1]};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void FilterPanel::showHowRead(std::size_t bound)
{
    const auto day = boundDay(m_bounds[bound]->displayText(), m_order);
    const Text hint = m_order == basic::DateOrder::DayMonthYear ? Text::DateHint : Text::DateHintMonthFirst;
    const QString text = day ? m_texts.dayInWords(*day) : m_texts.text(hint);
    m_read[bound]->setForegroundRole(day ? QPalette::WindowText : QPalette::PlaceholderText);
    m_read[bound]->setText(text);
    m_bounds[bound]->setAccessibleDescription(text);
}

Filter FilterPanel::filter() const
{
    Filter filter;
    filter.Presse = m_name->text();
    for (std::size_t i = 0; i < m_sexes.size(); ++i)
        filter.Geschlechtfilter[i] = m_sexes[i]->isChecked() ? 1 : 0;
    for (std::size_t i = 0; i < m_dates.size(); ++i)
        filter.Datumfilter[i] = m_dates[i]->isChecked() ? 1 : 0;
    for (std::size_t i = 0; i < m_bounds.size(); ++i)
        filter.Presse_Datum[i] = m_bounds[i]->displayText();
    filter.Filterliste = m_lists[0]->isChecked() ? PersonList::Unmarked : PersonList::Marked;
    return filter;
}

void FilterPanel::setFilter(const Filter &filter)
{
    m_pause.stop();
    const QScopedValueRollback quiet(m_filling, true);
    m_name->setText(filter.Presse);
    for (std::size_t i = 0; i < m_sexes.size(); ++i)
        m_sexes[i]->setChecked(filter.Geschlechtfilter[i] == 1);
    for (std::size_t i = 0; i < m_dates.size(); ++i)
        m_dates[i]->setChecked(filter.Datumfilter[i] == 1);
    for (std::size_t i = 0; i < m_bounds.size(); ++i)
        m_bounds[i]->setText(filter.Presse_Datum[i].isEmpty() ? EmptyDate : filter.Presse_Datum[i]);
    m_lists[static_cast<std::size_t>(filter.Filterliste)]->setChecked(true);
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
    return {m_name, m_bounds[0], m_bounds[1]};
}

QString FilterPanel::unsoundDate() const
{
    const auto unsound = std::ranges::find_if(m_bounds, [this](const QLineEdit *bound) {
        const QString text = bound->displayText();
        return text != EmptyDate && !basic::isDate(text, m_order);
    });
    return unsound == m_bounds.end() ? QString() : (*unsound)->displayText();
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
    Q_EMIT clearWanted();
}

bool FilterPanel::eventFilter(QObject *watched, QEvent *event)
{
    // A click into an empty date begins it at its first digit.
    if (event->type() == QEvent::MouseButtonRelease) {
        auto *bound = static_cast<QLineEdit *>(watched);
        if (bound->displayText() == EmptyDate)
            bound->setCursorPosition(0);
    }
    return QGroupBox::eventFilter(watched, event);
}

} // namespace kalvenor::selection
