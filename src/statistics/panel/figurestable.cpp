// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/figurestable.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "platform/desktop/elidedlabel.h"
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

namespace {

enum Row { Groups, Counts, Averages, Range, LeftOut };
constexpr int GroupColumns = 3;
constexpr int WideHeading = 2; ///< columns, where one figure stands for all groups

} // namespace

FiguresTable::FiguresTable(data::Session &session, QWidget *parent)
    : QFrame(parent), m_session(session), m_leftOut(new desktop::ElidedLabel(this)), m_who(new QPushButton(this))
{
    language::setDesignText(this, Text::FiguresTip);
    setFrameShape(QFrame::StyledPanel);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(8, 4, 8, 4);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    constexpr std::array groups{Text::Men, Text::Women, Text::All};
    for (int i = 0; i < GroupColumns; ++i) {
        const auto place = static_cast<std::size_t>(i);
        addHeading(*grid, Groups, i + 1, groups[place]);
        m_counts[place] = addFigure(*grid, Counts, i + 1, u"Anzahl_%1"_s.arg(i), Text::FiguresCount, groups[place]);
        m_averages[place] =
            addFigure(*grid, Averages, i + 1, u"Durchschnitt_%1"_s.arg(i), Text::FiguresAverage, groups[place]);
    }
    addHeading(*grid, Counts, 0, Text::FiguresCount);
    addHeading(*grid, Averages, 0, Text::FiguresAverage);
    addHeading(*grid, Range, 0, Text::FiguresRange, WideHeading);
    m_range = addFigure(*grid, Range, WideHeading, u"Altersspanne"_s, Text::FiguresRange);
    addHeading(*grid, LeftOut, 0, Text::FiguresLeftOut, WideHeading);
    m_withoutDate = addFigure(*grid, LeftOut, WideHeading, u"OhneDatum"_s, Text::FiguresLeftOut);
    m_leftOut->setObjectName(u"Ausgelassen"_s);
    m_leftOut->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_leftOut->setAccessibleDescription(session.language.text(Text::FiguresLeftOut));
    grid->addWidget(m_leftOut, LeftOut + 1, 1, 1, GroupColumns);
    m_who->setObjectName(u"Auslassungen"_s);
    language::setDesignText(m_who, Text::LeftOutWho);
    grid->addWidget(m_who, LeftOut + 1, 0, Qt::AlignLeft | Qt::AlignVCenter);
    for (int column = 0; column <= GroupColumns; ++column)
        grid->setColumnStretch(column, column == 0 ? 2 : 1);
    connect(m_who, &QPushButton::clicked, this, &FiguresTable::leftOutWanted);
}

void FiguresTable::addHeading(QGridLayout &grid, int row, int column, Text caption, int columns)
{
    auto *label = new QLabel(this);
    language::setDesignText(label, caption);
    label->setWordWrap(true);
    label->setAlignment(column == 0 ? Qt::AlignLeft : Qt::AlignRight);
    grid.addWidget(label, row, column, 1, columns);
}

QLabel *FiguresTable::addFigure(QGridLayout &grid, int row, int column, const QString &name, Text what, Text group)
{
    auto *label = new QLabel(this);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignRight | Qt::AlignTop);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::ClickFocus);
    QString description = m_session.language.text(what);
    if (group != Text::None)
        description += u", "_s + m_session.language.text(group);
    label->setAccessibleDescription(description);
    grid.addWidget(label, row, column, 1, group == Text::None ? GroupColumns + 1 - column : 1);
    return label;
}

void FiguresTable::setFigures(const Grafikzahlen &figures)
{
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
        m_counts[i]->setText(figures.anzahl[i]);
        m_averages[i]->setText(figures.durchschnitt[i]);
    }
    m_range->setText(figures.spanne.value_or(QString()));
    m_withoutDate->setText(figures.ohneDatum);
    const QLocale locale = language::anzeigesprache(m_session.host);
    const Personenzahlen &persons = figures.zahlen;
    QStringList others;
    for (const auto &[text, count] : {std::pair(Text::PersonsNotDiedAfterBirth, persons.nichtNachGeburt),
                                      {Text::UnknownSexCount, persons.ohneGeschlecht}}) {
        if (count > 0)
            others << m_session.language.text(text).arg(locale.toString(count));
    }
    m_leftOut->setText(others.join(u", "_s));
    m_leftOut->setVisible(!others.isEmpty());
    m_who->setVisible(persons.ohneDatum > 0 || !others.isEmpty());
}

} // namespace kalvenor::statistics
