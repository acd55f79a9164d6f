// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filter/filterfields.h"

#include "language/forms/accesskeys.h"
#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "platform/desktop/flowlayout.h"
#include "platform/desktop/lineicon.h"
#include "platform/desktop/problemframe.h"
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
#include <QTimer>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

using language::Text;

namespace {

constexpr int LabelCharacters = 5;
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

QLayout *rowOf(std::initializer_list<QWidget *> widgets)
{
    auto *row = new desktop::FlowLayout;
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    return row;
}

/// Widgets that stay on one line.
QWidget *together(QWidget *parent, std::initializer_list<QWidget *> widgets)
{
    auto *group = new QWidget(parent);
    auto *row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : widgets)
        row->addWidget(widget);
    return group;
}

} // namespace

FilterFields::FilterFields(language::Sprachmodul &texts, basic::DateOrder order, QWidget *parent)
    : QWidget(parent), m_texts(texts), m_order(order)
{
    setObjectName(u"Filterfelder"_s);
    makeBoxes();
    makeBounds();
    layOut();
    connect(m_filter, &QPushButton::clicked, this, &FilterFields::filterWanted);
    connect(m_clear, &QPushButton::clicked, this, &FilterFields::clearWanted);
}

void FilterFields::makeBoxes()
{
    m_sexes = {made<QCheckBox>(this, "Geschlechtfilter", 0, Text::FilterMen, Text::FilterMenTip),
               made<QCheckBox>(this, "Geschlechtfilter", 1, Text::FilterWomen, Text::FilterWomenTip)};
    constexpr Text incomplete = Text::IncompleteDatesTip;
    m_dates = {made<QCheckBox>(this, "Datumfilter", 0, Text::FilterBirth, incomplete),
               made<QCheckBox>(this, "Datumfilter", 1, Text::FilterDeath, incomplete),
               made<QCheckBox>(this, "Datumfilter", 2, Text::FilterChange, Text::None)};
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
    for (QAbstractButton *box : std::initializer_list<QAbstractButton *>{m_sexes[0], m_sexes[1], m_dates[0], m_dates[1],
                                                                         m_dates[2], m_lists[0]})
        connect(box, &QAbstractButton::toggled, this, [this] {
            if (m_filling)
                return;
            showDateProblems();
            Q_EMIT changed(false);
        });
}

void FilterFields::makeBounds()
{
    const bool dayFirst = m_order == basic::DateOrder::DayMonthYear;
    m_bounds = {made<QLineEdit>(this, "Presse_Datum", 0, Text::None,
                                dayFirst ? Text::FilterFromTip : Text::FilterFromTipMonthFirst),
                made<QLineEdit>(this, "Presse_Datum", 1, Text::None,
                                dayFirst ? Text::FilterToTip : Text::FilterToTipMonthFirst)};
    m_dateProblem = new desktop::ProblemLabel(this);
    m_dateProblem->setObjectName(u"Datumsproblem"_s);
    for (std::size_t i = 0; i < m_bounds.size(); ++i) {
        QLineEdit *bound = m_bounds[i];
        bound->setInputMask(u"00-00-0000;_"_s);
        bound->setFixedWidth(bound->fontMetrics().horizontalAdvance(u"00-00-0000"_s) +
                             3 * bound->fontMetrics().averageCharWidth() + 8);
        bound->installEventFilter(this);
        m_boundFrames[i] = new desktop::ProblemFrame(*bound);
        m_read[i] = new QLabel(this);
        m_read[i]->setObjectName(u"Gelesen_%1"_s.arg(i));
        // Wide enough for every date, so that nothing moves while one is typed.
        m_read[i]->setMinimumWidth(m_read[i]->fontMetrics().horizontalAdvance(m_texts.dayInWords(LongDay)));
        showHowRead(i);
        connect(bound, &QLineEdit::textChanged, this, [this, i] {
            showHowRead(i);
            if (m_filling)
                return;
            tickADate();
            showDateProblems();
            Q_EMIT changed(true);
        });
        connect(bound, &QLineEdit::returnPressed, this, &FilterFields::filterWanted);
    }
}

void FilterFields::layOut()
{
    auto *from = labelFor(m_bounds[0], this, Text::FilterFrom);
    auto *to = labelFor(m_bounds[1], this, Text::FilterTo);
    for (QLabel *label : {from, to})
        label->setMinimumWidth(LabelCharacters * fontMetrics().averageCharWidth());
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    const auto addHeading = [&](Text caption, int row) {
        QLabel *heading = labelFor(nullptr, this, caption);
        heading->setMinimumHeight(m_sexes[0]->sizeHint().height()); // on the line of the boxes beside it
        grid->addWidget(heading, row, 0, Qt::AlignTop);
    };
    addHeading(Text::Sex, 0);
    grid->addLayout(rowOf({m_sexes[0], m_sexes[1]}), 0, 1);
    addHeading(Text::FilterPeriod, 1);
    grid->addLayout(rowOf({m_dates[0], m_dates[1], m_dates[2]}), 1, 1);
    grid->addLayout(
        rowOf({together(this, {from, m_bounds[0], m_read[0]}), together(this, {to, m_bounds[1], m_read[1]})}), 2, 1);
    grid->addWidget(m_dateProblem, 3, 1);
    addHeading(Text::FilterList, 4);
    grid->addLayout(rowOf({m_lists[0], m_lists[1]}), 4, 1);
    grid->addLayout(rowOf({m_filter, m_clear}), 5, 1);
    grid->setColumnStretch(1, 1);

    const QList<QWidget *> tabs{m_sexes[0],  m_sexes[1], m_dates[0], m_dates[1], m_dates[2], m_bounds[0],
                                m_bounds[1], m_lists[0], m_lists[1], m_filter,   m_clear};
    for (qsizetype i = 1; i < tabs.size(); ++i)
        setTabOrder(tabs[i - 1], tabs[i]);
}

QWidget &FilterFields::firstControl()
{
    return *m_sexes[0];
}

QWidget &FilterFields::lastControl()
{
    return *m_clear;
}

void FilterFields::showHowRead(std::size_t bound)
{
    const auto day = boundDay(m_bounds[bound]->displayText(), m_order);
    const Text hint = m_order == basic::DateOrder::DayMonthYear ? Text::DateHint : Text::DateHintMonthFirst;
    const QString text = day ? m_texts.dayInWords(*day) : m_texts.text(hint);
    m_read[bound]->setForegroundRole(day ? QPalette::WindowText : QPalette::PlaceholderText);
    m_read[bound]->setText(text);
    m_bounds[bound]->setAccessibleDescription(text);
}

/// A date that is still being typed is no problem yet.
void FilterFields::showDateProblems()
{
    QString problem;
    bool anyDate = false;
    for (std::size_t i = 0; i < m_bounds.size(); ++i) {
        const QString text = m_bounds[i]->displayText();
        const bool isDate = basic::isDate(text, m_order);
        const bool ended = !text.contains(u'_') || !m_bounds[i]->hasFocus();
        const bool wrong = text != EmptyDate && !isDate && ended;
        const QString why = wrong ? m_texts.text(Text::NoDate).arg(text) : QString();
        m_boundFrames[i]->setProblem(why);
        if (!wrong)
            showHowRead(i); // the description
        if (problem.isEmpty())
            problem = why;
        anyDate = anyDate || isDate;
    }
    const bool ticked = std::ranges::any_of(m_dates, &QCheckBox::isChecked);
    if (problem.isEmpty() && anyDate && !ticked)
        problem = m_texts.text(Text::TickADate);
    m_dateProblem->setProblem(problem);
}

/// Who types a date and has not said which one it is means the birth.
void FilterFields::tickADate()
{
    const bool anyDate = std::ranges::any_of(
        m_bounds, [this](const QLineEdit *bound) { return basic::isDate(bound->displayText(), m_order); });
    if (anyDate && std::ranges::none_of(m_dates, &QCheckBox::isChecked))
        m_dates[0]->setChecked(true);
}

std::vector<Condition> FilterFields::conditions()
{
    std::vector<Condition> set;
    if (m_sexes[0]->isChecked() != m_sexes[1]->isChecked()) {
        QCheckBox *box = m_sexes[m_sexes[0]->isChecked() ? 0 : 1];
        set.push_back({language::withoutAccessKey(box->text()), [box] {
                           box->setChecked(false);
                       }});
    }
    const auto boundText = [this](std::size_t bound) {
        const QString text = m_bounds[bound]->displayText();
        return basic::isDate(text, m_order) ? text : QString();
    };
    const QString from = boundText(0);
    const QString to = boundText(1);
    QString period;
    if (!from.isEmpty() || !to.isEmpty())
        period = from.isEmpty() ? m_texts.text(Text::PeriodTo).arg(to)
                 : to.isEmpty() ? m_texts.text(Text::PeriodFrom).arg(from)
                                : m_texts.text(Text::PeriodFromTo).arg(from, to);
    for (QCheckBox *box : m_dates) {
        if (box->isChecked())
            set.push_back({(language::withoutAccessKey(box->text()) + u' ' + period).trimmed(), [box] {
                               box->setChecked(false);
                           }});
    }
    if (m_lists[1]->isChecked())
        set.push_back({m_texts.text(Text::InMarkedList), [this] {
                           m_lists[0]->setChecked(true);
                       }});
    return set;
}

void FilterFields::read(Filter &filter) const
{
    for (std::size_t i = 0; i < m_sexes.size(); ++i)
        filter.Geschlechtfilter[i] = m_sexes[i]->isChecked() ? 1 : 0;
    for (std::size_t i = 0; i < m_dates.size(); ++i)
        filter.Datumfilter[i] = m_dates[i]->isChecked() ? 1 : 0;
    for (std::size_t i = 0; i < m_bounds.size(); ++i)
        filter.Presse_Datum[i] = m_bounds[i]->displayText();
    filter.Filterliste = m_lists[0]->isChecked() ? PersonList::Unmarked : PersonList::Marked;
}

void FilterFields::show(const Filter &filter)
{
    const QScopedValueRollback quiet(m_filling, true);
    for (std::size_t i = 0; i < m_sexes.size(); ++i)
        m_sexes[i]->setChecked(filter.Geschlechtfilter[i] == 1);
    for (std::size_t i = 0; i < m_dates.size(); ++i)
        m_dates[i]->setChecked(filter.Datumfilter[i] == 1);
    for (std::size_t i = 0; i < m_bounds.size(); ++i)
        m_bounds[i]->setText(filter.Presse_Datum[i].isEmpty() ? EmptyDate : filter.Presse_Datum[i]);
    m_lists[static_cast<std::size_t>(filter.Filterliste)]->setChecked(true);
    showDateProblems();
}

QList<QWidget *> FilterFields::entries() const
{
    return {m_bounds[0], m_bounds[1]};
}

bool FilterFields::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut)
        QTimer::singleShot(0, this, &FilterFields::showDateProblems);
    // A click into an empty date begins it at its first digit.
    if (event->type() == QEvent::MouseButtonRelease) {
        auto *bound = static_cast<QLineEdit *>(watched);
        if (bound->displayText() == EmptyDate)
            bound->setCursorPosition(0);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kalvenor::selection
