// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/filter/filterpanel.h"

#include "language/forms/widgetform.h"
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

namespace {

constexpr int TypingPauseMs = 300;
const QString EmptyDate = u"__-__-____"_s;

template <typename Control>
Control *made(QWidget *parent, const char *name, int index, const char *caption, const char *tooltip)
{
    auto *control = new Control(parent);
    control->setObjectName(u"%1_%2"_s.arg(QLatin1String(name)).arg(index));
    language::setDesignText(control, QString::fromUtf8(caption), QString::fromUtf8(tooltip));
    return control;
}

QLabel *labelFor(QWidget *buddy, QWidget *parent, const QString &caption)
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

FilterPanel::FilterPanel(QWidget *parent) : QGroupBox(parent)
{
    setObjectName(u"Filter"_s);
    language::setDesignText(this, u"20400Filter"_s);
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
    language::setDesignText(m_name, {}, u"20402Teil des Namens; * steht für beliebige Zeichen, ? für eines"_s);
    m_sexes = {made<QCheckBox>(this, "Geschlechtfilter", 0, "20403&Männer",
                               "20417Nur Männer zeigen; beide oder keines zeigt alle"),
               made<QCheckBox>(this, "Geschlechtfilter", 1, "20404&Frauen",
                               "20418Nur Frauen zeigen; beide oder keines zeigt alle")};
    const char *incomplete = "20424Personen ohne vollständiges Datum erscheinen nur, wo eine Grenze leer ist.";
    m_dates = {made<QCheckBox>(this, "Datumfilter", 0, "20405&Geburtsdatum", incomplete),
               made<QCheckBox>(this, "Datumfilter", 1, "20406S&terbedatum", incomplete),
               made<QCheckBox>(this, "Datumfilter", 2, "20407&Letzte Änderung", "")};
    m_bounds = {made<QLineEdit>(this, "Presse_Datum", 0, "", "20414Erster Tag, als Tag, Monat und Jahr"),
                made<QLineEdit>(this, "Presse_Datum", 1, "", "20415Letzter Tag, als Tag, Monat und Jahr")};
    for (QLineEdit *bound : m_bounds) {
        bound->setInputMask(u"00-00-0000;_"_s);
        bound->setFixedWidth(bound->fontMetrics().horizontalAdvance(u"00-00-0000"_s) +
                             3 * bound->fontMetrics().averageCharWidth() + 8);
        bound->installEventFilter(this);
    }
    m_lists = {made<QRadioButton>(this, "Filterliste", 0, "20410Ni&cht markierte Personen",
                                  "20416Der Filter wirkt auf diese Liste"),
               made<QRadioButton>(this, "Filterliste", 1, "20411Ma&rkierte Personen",
                                  "20416Der Filter wirkt auf diese Liste")};
    m_lists[0]->setChecked(true);
    m_filter = new QPushButton(this);
    m_filter->setObjectName(u"Filtern"_s);
    m_filter->setIcon(desktop::lineIcon(desktop::LineIcon::Find));
    m_filter->setAutoDefault(false);
    language::setDesignText(m_filter, u"20412Filtern"_s);
    m_clear = new QPushButton(this);
    m_clear->setObjectName(u"Filteraufheben"_s);
    m_clear->setIcon(desktop::lineIcon(desktop::LineIcon::Clear));
    m_clear->setAutoDefault(false);
    language::setDesignText(m_clear, u"20413Filter a&ufheben"_s);
}

void FilterPanel::layOut()
{
    auto *name = new QHBoxLayout;
    name->addWidget(m_name, 1);
    name->addWidget(m_filter);
    name->addWidget(m_clear);
    auto *from = labelFor(m_bounds[0], this, u"20408&von"_s);
    auto *to = labelFor(m_bounds[1], this, u"20409b&is"_s);

    auto *grid = new QGridLayout(this);
    grid->addWidget(labelFor(m_name, this, u"20401&Name"_s), 0, 0);
    grid->addLayout(name, 0, 1);
    grid->addWidget(labelFor(nullptr, this, u"20421Geschlecht"_s), 1, 0);
    grid->addLayout(rowOf({m_sexes[0], m_sexes[1]}), 1, 1);
    grid->addWidget(labelFor(nullptr, this, u"20422Zeitraum"_s), 2, 0);
    grid->addLayout(rowOf({m_dates[0], m_dates[1], m_dates[2]}), 2, 1);
    grid->addLayout(rowOf({from, m_bounds[0], to, m_bounds[1]}), 3, 1);
    grid->addWidget(labelFor(nullptr, this, u"20423Liste"_s), 4, 0);
    grid->addLayout(rowOf({m_lists[0], m_lists[1]}), 4, 1);
    grid->setColumnStretch(1, 1);

    const QList<QWidget *> order{m_name,     m_filter,   m_clear,     m_sexes[0],  m_sexes[1], m_dates[0],
                                 m_dates[1], m_dates[2], m_bounds[0], m_bounds[1], m_lists[0], m_lists[1]};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
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
    const auto unsound = std::ranges::find_if(m_bounds, [](const QLineEdit *bound) {
        const QString text = bound->displayText();
        return text != EmptyDate && !basic::isDate(text, basic::systemDateOrder());
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
