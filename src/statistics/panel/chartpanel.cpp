// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/chartpanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include "platform/chart/chartcontrol.h"
#include "platform/chart/chartpicture.h"
#include "platform/desktop/lineicon.h"
#include "statistics/figures/grafikbild.h"
#include "statistics/panel/emptystate.h"
#include "statistics/panel/figurestable.h"
#include "statistics/panel/sexbox.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <tuple>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

namespace {

constexpr QSize SavedSize(1600, 1000);
constexpr double SavedDpi = 160;

bool isComputed(const Grafikzahlen &figures)
{
    return !figures.ohneDatum.isEmpty();
}

QAbstractButton *groupingButton(QWidget *parent, int index, Text caption, Text tooltip)
{
    auto *button = new QRadioButton(parent);
    button->setObjectName(u"gt_ribbon_%1"_s.arg(index));
    language::setDesignText(button, caption, tooltip);
    return button;
}

} // namespace

ChartPanel::ChartPanel(StatisticsController &controller, QWidget *parent)
    : QWidget(parent), m_controller(controller), m_type(new QComboBox(this)),
      m_legend(new QCheckBox(this)), m_grouping{groupingButton(this, 0, Text::ByBirth, Text::ByBirthTip),
                                                groupingButton(this, 1, Text::ByDeath, Text::ByDeathTip)},
      m_sexes{makeSexBox(this, 2, Text::Men), makeSexBox(this, 3, Text::Women)}, m_chart(new chart::ChartControl(this))
{
    m_chart->setObjectName(u"Grafik"_s);
    nameActions();
    m_empty = EmptyState::standIn(m_chart, controller.session().language);
    m_figures = new FiguresTable(controller.session(), this);
    auto *column = new QVBoxLayout(this);
    column->addWidget(makeOptions());
    column->addWidget(m_empty->frame(), 1);
    column->addWidget(m_figures);

    connect(m_type, &QComboBox::activated, this, &ChartPanel::chartWanted);
    for (const QAbstractButton *button : m_grouping)
        connect(button, &QAbstractButton::clicked, this, &ChartPanel::chartWanted);
    for (const QCheckBox *box : m_sexes)
        connect(box, &QCheckBox::clicked, this, &ChartPanel::chartWanted);
    connect(m_legend, &QCheckBox::clicked, this, &ChartPanel::chartWanted);
    connect(m_chart, &chart::ChartControl::saveWanted, this, &ChartPanel::savePicture);
    connect(&controller, &StatisticsController::figuresChanged, this, &ChartPanel::showFigures);
    connect(m_chart, &chart::ChartControl::figureChosen, this, &ChartPanel::figureChosen);
    connect(m_figures, &FiguresTable::leftOutWanted, this, &ChartPanel::leftOutWanted);
    showFigures();
}

void ChartPanel::nameActions()
{
    const std::tuple<QAction *, const char *, Text> actions[] = {
        {m_chart->copyAction, "Bildkopieren", Text::CopyPicture},
        {m_chart->saveAction, "Bildspeichern", Text::SavePicture},
        {m_chart->gridAction, "Gitterlinien", Text::GridLines},
        {m_chart->valuesAction, "Wertezeigen", Text::ShowValues},
        {m_chart->tableAction, "AlsTabelle", Text::ShowAsTable}};
    for (const auto &[action, name, caption] : actions) {
        action->setObjectName(QLatin1String(name));
        language::setDesignText(action, caption);
    }
}

QWidget *ChartPanel::makeOptions()
{
    auto *box = new QWidget(this);
    m_type->setObjectName(u"Grafiktyp"_s);
    m_type->setAccessibleName(m_controller.session().language.text(Text::ChartType));
    for (const ChartTypeEntry &entry : chartTypeEntries())
        m_type->addItem(m_controller.session().language.text(entry.name), static_cast<int>(entry.type));
    m_type->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon); // the list opens as wide as it needs
    m_type->setMinimumContentsLength(8);
    m_legend->setObjectName(u"Legende"_s);
    language::setDesignText(m_legend, Text::Legend, Text::LegendTip);
    auto *first = new QHBoxLayout;
    first->addWidget(m_type, 1);
    first->addWidget(m_legend);
    first->addWidget(makeTools());
    auto *second = new QHBoxLayout;
    second->addWidget(m_grouping[0]);
    second->addWidget(m_grouping[1]);
    second->addStretch(1);
    second->addWidget(m_sexes[0]);
    second->addWidget(m_sexes[1]);
    auto *rows = new QVBoxLayout(box);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(first);
    rows->addLayout(second);
    return box;
}

/// What can be done with the picture, beside the options.
QWidget *ChartPanel::makeTools()
{
    auto *tools = new QWidget(this);
    auto *row = new QHBoxLayout(tools);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    const std::pair<QAction *, desktop::LineIcon> actions[] = {{m_chart->copyAction, desktop::LineIcon::Copy},
                                                               {m_chart->saveAction, desktop::LineIcon::Save},
                                                               {m_chart->valuesAction, desktop::LineIcon::Values},
                                                               {m_chart->tableAction, desktop::LineIcon::Table}};
    for (const auto &[action, icon] : actions) {
        action->setIcon(desktop::lineIcon(icon));
        auto *button = new QToolButton(tools);
        button->setObjectName(action->objectName() + u"_Knopf"_s);
        button->setDefaultAction(action);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        row->addWidget(button);
    }
    return tools;
}

Statistik ChartPanel::options() const
{
    Statistik options;
    options.grafiktyp = m_type->currentIndex();
    options.legende = m_legend->isChecked();
    options.nachGeburtsjahr = m_grouping[0]->isChecked();
    for (std::size_t i = 0; i < m_sexes.size(); ++i)
        options.geschlechtalter[i + 2] = m_sexes[i]->isChecked() ? 1 : 0;
    return options;
}

void ChartPanel::setOptions(const Statistik &options)
{
    if (options.grafiktyp >= 0 && options.grafiktyp < m_type->count())
        m_type->setCurrentIndex(options.grafiktyp);
    m_legend->setChecked(options.legende);
    m_grouping[options.nachGeburtsjahr ? 0 : 1]->setChecked(true);
    for (std::size_t i = 0; i < m_sexes.size(); ++i)
        m_sexes[i]->setChecked(options.geschlechtalter[i + 2] == 1);
    updateLook();
}

void ChartPanel::updateLook()
{
    data::Session &session = m_controller.session();
    chart::ChartLook look = grafiklook(session.language, session.host, options());
    look.grid = m_chart->gridAction->isChecked();
    look.values = m_chart->valuesAction->isChecked();
    const Grafikzahlen &figures = m_controller.figures();
    look.emptyText = isComputed(figures) ? session.language.text(leerGrund(figures.zahlen)) : QString();
    m_chart->setLook(look);
}

void ChartPanel::focusFirst()
{
    m_type->setFocus();
}

void ChartPanel::showFigures()
{
    const Grafikzahlen &figures = m_controller.figures();
    m_figures->setFigures(figures);
    m_chart->setTable(figures.tabelle);
    updateLook();
    showState();
}

/// The chart, or why there is none and what to do about it.
void ChartPanel::showState()
{
    const Grafikzahlen &figures = m_controller.figures();
    if (!isComputed(figures) || !figures.tabelle.isEmpty()) {
        m_empty->showView();
        return;
    }
    const Text missing = leerGrund(figures.zahlen);
    const bool bothSexes = m_sexes[0]->isChecked() && m_sexes[1]->isChecked();
    if (missing == Text::MarkPersonsFirst)
        m_empty->tell(missing, Text::ChoosePersons, [this] { Q_EMIT personsWanted(); });
    else if (missing == Text::NobodyOfSexWithAge && !bothSexes)
        m_empty->tell(missing, Text::MenAndWomenWanted, [this] {
            for (QCheckBox *box : m_sexes)
                box->setChecked(true);
            Q_EMIT chartWanted();
        });
    else
        m_empty->tell(missing, Text::LeftOutWho, [this] { Q_EMIT leftOutWanted(); });
}

void ChartPanel::savePicture()
{
    desktop::Desktop &desktop = m_controller.session().host.desktop();
    const QString file =
        desktop.saveFileName(window(), {.title = m_controller.session().language.text(Text::SavePictureAs),
                                        .filters = u"PNG (*.png);;JPEG (*.jpg);;SVG (*.svg)"_s,
                                        .suffix = u"png"_s});
    if (file.isEmpty())
        return;
    try {
        chart::writeChart(m_chart->table(), m_chart->look(), SavedSize, file, 92, SavedDpi);
        Q_EMIT said(m_controller.session().language.text(Text::Saved).arg(file));
    } catch (const basic::Error &error) {
        desktop.messageBox(language::errorMessage(m_controller.session().language, error), desktop::MessageCritical,
                           m_controller.session().language.text(Text::Error));
    }
}

} // namespace kalvenor::statistics
