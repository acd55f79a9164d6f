// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/chartpanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/errormessage.h"
#include "language/texts/sprache.h"
#include "platform/chart/chartcontrol.h"
#include "platform/chart/chartpicture.h"
#include "statistics/figures/grafikbild.h"
#include "statistics/panel/sexbox.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

using language::Text;

namespace {

constexpr QSize SavedSize(1600, 1000);
constexpr double SavedDpi = 160;

QLabel *heading(QWidget *parent, Text caption)
{
    auto *label = new QLabel(parent);
    language::setDesignText(label, caption);
    return label;
}

QLabel *figure(QWidget *parent, const QString &name)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::ClickFocus);
    return label;
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
    auto *column = new QVBoxLayout(this);
    column->addWidget(makeOptions());
    column->addWidget(m_chart, 1);
    column->addWidget(makeFigures());

    connect(m_type, &QComboBox::activated, this, &ChartPanel::chartWanted);
    for (const QAbstractButton *button : m_grouping)
        connect(button, &QAbstractButton::clicked, this, &ChartPanel::chartWanted);
    for (const QCheckBox *box : m_sexes)
        connect(box, &QCheckBox::clicked, this, &ChartPanel::chartWanted);
    connect(m_legend, &QCheckBox::clicked, this, &ChartPanel::chartWanted);
    connect(m_chart, &chart::ChartControl::saveWanted, this, &ChartPanel::savePicture);
    connect(&controller, &StatisticsController::figuresChanged, this, &ChartPanel::showFigures);
    showFigures();
    setFocusProxy(m_type);
}

void ChartPanel::nameActions()
{
    language::setDesignText(m_chart->copyAction, Text::CopyPicture);
    language::setDesignText(m_chart->saveAction, Text::SavePicture);
    language::setDesignText(m_chart->gridAction, Text::GridLines);
    language::setDesignText(m_chart->valuesAction, Text::ShowValues);
    language::setDesignText(m_chart->tableAction, Text::ShowAsTable);
}

QWidget *ChartPanel::makeOptions()
{
    auto *box = new QWidget(this);
    m_type->setObjectName(u"Grafiktyp"_s);
    m_type->setAccessibleName(m_controller.session().language.text(Text::ChartType));
    for (const ChartTypeEntry &entry : chartTypeEntries())
        m_type->addItem(m_controller.session().language.text(entry.name), static_cast<int>(entry.type));
    m_legend->setObjectName(u"Legende"_s);
    language::setDesignText(m_legend, Text::Legend, Text::LegendTip);
    auto *first = new QHBoxLayout;
    first->addWidget(m_type, 1);
    first->addWidget(m_legend);
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

QWidget *ChartPanel::makeFigures()
{
    auto *box = new QWidget(this);
    language::setDesignText(box, Text::FiguresTip);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(2);
    grid->addWidget(heading(box, Text::FiguresCount), 1, 0);
    grid->addWidget(heading(box, Text::FiguresAverage), 2, 0);
    constexpr std::array groups{Text::Men, Text::Women, Text::All};
    for (int i = 0; i < 3; ++i) {
        const auto place = static_cast<std::size_t>(i);
        grid->addWidget(heading(box, groups[place]), 0, i + 1, Qt::AlignRight);
        m_counts[place] = figure(box, u"Anzahl_%1"_s.arg(i));
        m_averages[place] = figure(box, u"Durchschnitt_%1"_s.arg(i));
        grid->addWidget(m_counts[place], 1, i + 1, Qt::AlignRight);
        grid->addWidget(m_averages[place], 2, i + 1, Qt::AlignRight);
    }
    m_unknownSex = figure(box, u"OhneGeschlecht"_s);
    grid->addWidget(m_unknownSex, 1, 4);
    m_range = figure(box, u"Altersspanne"_s);
    m_withoutDate = figure(box, u"OhneDatum"_s);
    m_leftOut = figure(box, u"Ausgelassen"_s);
    grid->addWidget(heading(box, Text::FiguresRange), 3, 0);
    grid->addWidget(m_range, 3, 1, 1, 4);
    grid->addWidget(heading(box, Text::FiguresLeftOut), 4, 0, Qt::AlignTop);
    grid->addWidget(m_withoutDate, 4, 1, 1, 4);
    grid->addWidget(m_leftOut, 5, 1, 1, 4);
    grid->setColumnStretch(4, 1);
    return box;
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
    const bool computed = !figures.ohneDatum.isEmpty();
    look.emptyText = computed ? leererText(session.language, figures.zahlen) : QString();
    m_chart->setLook(look);
}

void ChartPanel::showFigures()
{
    const Grafikzahlen &figures = m_controller.figures();
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
        m_counts[i]->setText(figures.anzahl[i]);
        m_averages[i]->setText(figures.durchschnitt[i]);
    }
    m_range->setText(figures.spanne.value_or(QString()));
    m_withoutDate->setText(figures.ohneDatum);
    const QLocale locale = language::anzeigesprache(m_controller.session().host);
    QStringList left;
    if (figures.zahlen.nichtNachGeburt > 0)
        left << m_controller.session()
                    .language.text(Text::PersonsNotDiedAfterBirth)
                    .arg(locale.toString(figures.zahlen.nichtNachGeburt));
    m_unknownSex->setText(figures.zahlen.ohneGeschlecht == 0
                              ? QString()
                              : m_controller.session()
                                    .language.text(Text::UnknownSexCount)
                                    .arg(locale.toString(figures.zahlen.ohneGeschlecht)));
    m_leftOut->setText(left.join(u'\n'));
    m_leftOut->setVisible(!left.isEmpty());
    m_chart->setTable(figures.tabelle);
    updateLook();
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
