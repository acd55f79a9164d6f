// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/statisticspanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "statistics/introduction/texteditor.h"
#include "statistics/panel/agelistpanel.h"
#include "statistics/panel/chartpanel.h"
#include "statistics/panel/leftoutdialog.h"
#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

namespace {

constexpr int PauseMs = 120;

} // namespace

StatisticsPanel::StatisticsPanel(StatisticsController &controller, QWidget *parent)
    : QWidget(parent), m_controller(controller), m_title(new QLineEdit(this)), m_notice(makeNoticeBar()),
      m_tabs(new QTabWidget(this)),
      m_introduction(new TextEditor(controller.session().language, controller.session().host, this)),
      m_chart(new ChartPanel(controller, this)), m_list(new AgeListPanel(controller, this))
{
    m_title->setObjectName(u"Statistiktitel"_s);
    m_title->setMaxLength(250);
    auto *titleLabel = new QLabel(this);
    language::setDesignText(titleLabel, Text::TitleLabel);
    language::setDesignText(m_title, Text::StatisticTitleHint, Text::StatisticTitle);
    titleLabel->setBuddy(m_title);

    m_tabs->setObjectName(u"statistiktab"_s);
    m_tabs->addTab(m_introduction, {});
    m_tabs->addTab(m_chart, {});
    m_tabs->addTab(m_list, {});
    language::setDesignTab(m_tabs, Introduction, Text::Introduction);
    language::setDesignTab(m_tabs, Chart, Text::Chart);
    language::setDesignTab(m_tabs, AgeList, Text::AgeList);

    auto *head = new QHBoxLayout;
    head->addWidget(titleLabel);
    head->addWidget(m_title, 1);
    auto *column = new QVBoxLayout(this);
    column->addLayout(head);
    column->addWidget(m_notice);
    column->addWidget(m_tabs, 1);

    m_pause.setSingleShot(true);
    m_pause.setInterval(PauseMs);
    connect(&m_pause, &QTimer::timeout, this, &StatisticsPanel::computeShown);
    connect(m_tabs, &QTabWidget::currentChanged, this, &StatisticsPanel::tabChosen);
    connect(m_list, &AgeListPanel::listWanted, this, [this] {
        alterslistenausgabe();
        Q_EMIT edited();
    });
    connect(m_list, &AgeListPanel::personWanted, this, &StatisticsPanel::personWanted);
    connect(m_chart, &ChartPanel::chartWanted, this, [this] {
        grafikermitteln();
        Q_EMIT edited();
    });
    connect(m_chart, &ChartPanel::figureChosen, this, &StatisticsPanel::showPersonsOf);
    connect(m_chart, &ChartPanel::leftOutWanted, this, &StatisticsPanel::showLeftOut);
    connect(m_list, &AgeListPanel::leftOutWanted, this, &StatisticsPanel::showLeftOut);
    connect(m_chart, &ChartPanel::personsWanted, this, &StatisticsPanel::personsWanted);
    connect(m_list, &AgeListPanel::personsWanted, this, &StatisticsPanel::personsWanted);
    connect(m_list, &AgeListPanel::unmarkWanted, this, &StatisticsPanel::unmarkWanted);
    connect(m_chart, &ChartPanel::said, this, &StatisticsPanel::said);
    connect(m_introduction, &TextEditor::said, this, &StatisticsPanel::said);
    connect(m_introduction, &TextEditor::changed, this, &StatisticsPanel::edited);
    connect(m_title, &QLineEdit::textEdited, this, &StatisticsPanel::edited);
    connect(&controller, &StatisticsController::said, this, &StatisticsPanel::said);
    setOptions(readOptions(controller.session().host));
}

QWidget *StatisticsPanel::makeNoticeBar()
{
    auto *bar = new QFrame(this);
    bar->setObjectName(u"Veraltet"_s);
    bar->setFrameShape(QFrame::StyledPanel);
    auto *label = new QLabel(bar);
    label->setWordWrap(true);
    language::setDesignText(label, Text::OutOfDate);
    auto *compute = new QPushButton(bar);
    compute->setObjectName(u"Neuberechnen"_s);
    language::setDesignText(compute, Text::ComputeAgain);
    connect(compute, &QPushButton::clicked, this, &StatisticsPanel::computeShown);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(8, 2, 2, 2);
    row->addWidget(label, 1);
    row->addWidget(compute);
    bar->hide();
    return bar;
}

void StatisticsPanel::showTab(Tab tab)
{
    m_tabs->setCurrentIndex(tab);
    switch (tab) {
    case Chart:
        m_chart->focusFirst();
        break;
    case AgeList:
        m_list->focusFirst();
        break;
    default:
        m_introduction->entry().setFocus();
    }
}

void StatisticsPanel::showPersonsOf(int column, int row)
{
    const Grafikzahlen figures = m_controller.figures();
    const auto place = static_cast<std::size_t>(column);
    if (place >= figures.gruppen.size() || row >= figures.tabelle.rowLabels.size())
        return;
    const Statistik chosen = options();
    const auto persons = m_controller.saeule(chosen, figures.gruppen[place], figures.erstesJahrhundert + row);
    if (!persons)
        return;
    showTab(AgeList);
    constexpr std::array groups{Text::Men, Text::Women, Text::All};
    language::Sprachmodul &texts = m_controller.session().language;
    const QLocale locale = language::anzeigesprache(m_controller.session().host);
    m_list->showOnly(texts.text(Text::PersonsInGroup)
                         .arg(texts.text(groups[figures.gruppen[place]]),
                              texts.text(chosen.nachGeburtsjahr ? Text::CenturyOfBirth : Text::CenturyOfDeath),
                              figures.tabelle.rowLabels[row].trimmed(),
                              locale.toString(static_cast<qlonglong>(persons->personen.size()))),
                     *persons);
}

void StatisticsPanel::showLeftOut()
{
    const auto persons = m_controller.auslassungen();
    if (!persons)
        return;
    LeftOutDialog dialog(m_controller.session(), *persons, window());
    if (m_controller.session().host.desktop().runDialog(dialog))
        Q_EMIT personWanted(dialog.chosen());
}

Statistik StatisticsPanel::options() const
{
    Statistik options = m_chart->options();
    for (std::size_t i = 0; i < 2; ++i)
        options.geschlechtalter[i] = m_list->sexBoxes()[i]->isChecked() ? 1 : 0;
    return options;
}

void StatisticsPanel::setOptions(const Statistik &options)
{
    for (std::size_t i = 0; i < 2; ++i)
        m_list->sexBoxes()[i]->setChecked(options.geschlechtalter[i] == 1);
    m_chart->setOptions(options);
}

Statistik StatisticsPanel::statistik() const
{
    Statistik statistik = options();
    statistik.titel = m_title->text();
    if (!m_introduction->isEmpty())
        statistik.rtf = m_introduction->rtf();
    return statistik;
}

void StatisticsPanel::setStatistik(const Statistik &statistik)
{
    m_title->setText(statistik.titel);
    m_introduction->setRtf(statistik.rtf);
    setOptions(statistik);
}

bool StatisticsPanel::alterslistenausgabe()
{
    const bool done = m_controller.alterslistenausgabe(options().geschlechtalter);
    m_notice->setVisible(!isShownCurrent());
    return done;
}

bool StatisticsPanel::grafikermitteln()
{
    const bool done = m_controller.grafikermitteln(options());
    m_notice->setVisible(!isShownCurrent());
    return done;
}

bool StatisticsPanel::computeOutdated()
{
    return (m_controller.isListCurrent() || alterslistenausgabe()) &&
           (m_controller.areFiguresCurrent() || grafikermitteln());
}

void StatisticsPanel::personsChanged()
{
    m_controller.forget();
    if (isShownCurrent())
        return;
    if (m_controller.mayFollow())
        m_pause.start();
    else
        m_notice->show();
}

void StatisticsPanel::setReadOnly(bool readOnly)
{
    m_list->setReadOnly(readOnly);
}

void StatisticsPanel::tabChosen()
{
    if (m_tabs->currentIndex() == AgeList)
        alterslistenausgabe();
    else if (!isShownCurrent())
        computeShown();
    m_notice->setVisible(!isShownCurrent());
}

bool StatisticsPanel::isShownCurrent() const
{
    switch (m_tabs->currentIndex()) {
    case Chart:
        return m_controller.areFiguresCurrent();
    case AgeList:
        return m_controller.isListCurrent();
    default:
        return true;
    }
}

void StatisticsPanel::computeShown()
{
    if (isShownCurrent() || !isVisible())
        return;
    if (m_controller.work().isRunning()) {
        m_pause.start();
        return;
    }
    if (m_tabs->currentIndex() == Chart)
        grafikermitteln();
    else
        alterslistenausgabe();
}

} // namespace kalvenor::statistics
