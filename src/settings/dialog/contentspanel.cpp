// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/contentspanel.h"

#include "language/forms/widgetform.h"
#include "language/texts/sprache.h"
#include "settings/dialog/lengthbox.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

using language::setDesignText;

constexpr int Percents[] = {50, 75, 100, 125, 150, 200, 250, 300, 400, 500, 600};
constexpr double WidestSpacing = 25.4; // millimetres
constexpr double WidestColumn = 500;   // millimetres

struct PrintSwitch {
    Element element;
    const char *name;
    Text caption;
};
constexpr PrintSwitch PrintSwitches[] = {{TitelKriterien, "TitelKriterien", Text::PrintCriteriaHeading},
                                         {TitelAltersliste, "TitelAltersliste", Text::PrintAgeListHeading},
                                         {NeueSeite, "NeueSeite", Text::ListOnNewPage},
                                         {Header, "Header", Text::PrintHeader},
                                         {Footer, "Footer", Text::PrintFooter}};

QCheckBox *checkBox(const char *name, Text caption, QWidget *parent)
{
    auto *box = new QCheckBox(parent);
    box->setObjectName(QLatin1String(name));
    setDesignText(box, caption);
    return box;
}

void addRow(QFormLayout *form, Text caption, QWidget *field)
{
    auto *label = new QLabel(field->parentWidget());
    setDesignText(label, caption);
    label->setBuddy(field);
    form->addRow(label, field);
}

} // namespace

ContentsPanel::ContentsPanel(language::Sprachmodul &texts, QWidget *parent) : QWidget(parent), m_texts(texts)
{
    auto *left = new QVBoxLayout;
    left->addWidget(makeSwitches());
    left->addStretch(1);
    auto *right = new QVBoxLayout;
    right->addWidget(makeChart());
    right->addWidget(makeList());
    right->addStretch(1);
    auto *both = new QHBoxLayout(this);
    both->addLayout(left, 1);
    both->addLayout(right, 1);
}

QWidget *ContentsPanel::makeSwitches()
{
    auto *group = new QGroupBox(this);
    setDesignText(group, Text::WhatIsPrinted);
    auto *column = new QVBoxLayout(group);
    m_chart = checkBox("Bildprint", Text::PrintChart, group);
    column->addWidget(m_chart);
    for (std::size_t i = 0; i < m_switches.size(); ++i) {
        m_switches[i] = checkBox(PrintSwitches[i].name, PrintSwitches[i].caption, group);
        column->addWidget(m_switches[i]);
    }
    return group;
}

QWidget *ContentsPanel::makeChart()
{
    auto *group = new QGroupBox(this);
    setDesignText(group, Text::Chart);
    auto *form = new QFormLayout(group);
    m_percent = new QComboBox(group);
    m_percent->setObjectName(u"Bildgroesse"_s);
    setDesignText(m_percent, {}, Text::ChartSizeTip);
    m_fontFactor = new NumberBox(0.5, 20, 2, group);
    m_fontFactor->setObjectName(u"Fontfaktor"_s);
    m_fontFactor->setSingleStep(0.5);
    setDesignText(m_fontFactor, {}, Text::ChartFontSizeTip);
    addRow(form, Text::ChartSize, m_percent);
    addRow(form, Text::ChartFontSize, m_fontFactor);
    connect(m_chart, &QCheckBox::toggled, group, &QWidget::setEnabled);
    return group;
}

QWidget *ContentsPanel::makeList()
{
    auto *group = new QGroupBox(this);
    setDesignText(group, Text::AgeList);
    auto *form = new QFormLayout(group);
    const QString unit = u' ' + m_texts.text(Text::Millimetres);
    m_spacing = new LengthBox(WidestSpacing, 2, group);
    m_spacing->setObjectName(u"Abstand"_s);
    m_spacing->setSingleStep(0.1);
    m_spacing->setSuffix(unit);
    addRow(form, Text::LineSpacing, m_spacing);
    auto *widths = new QLabel(group);
    setDesignText(widths, Text::ColumnWidths);
    form->addRow(widths);
    constexpr std::pair<const char *, Text> columns[] = {
        {"Spalten_1", Text::Age}, {"Spalten_2", Text::Sex}, {"Spalten_4", Text::Name}};
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        m_columns[i] = new LengthBox(WidestColumn, 1, group);
        m_columns[i]->setObjectName(QLatin1String(columns[i].first));
        m_columns[i]->setSuffix(unit);
        // A width of 0 is a share of what the other columns leave.
        m_columns[i]->setSpecialValueText(m_texts.text(Text::RemainingSpace));
        addRow(form, columns[i].second, m_columns[i]);
    }
    return group;
}

void ContentsPanel::setContents(const Druckvorgaben &vorgaben, const ReportMeasures &measures)
{
    m_vorgaben = vorgaben;
    m_measures = measures;
    m_chart->setChecked(vorgaben.Bildprint == 1);
    m_fontFactor->parentWidget()->setEnabled(m_chart->isChecked());
    for (std::size_t i = 0; i < m_switches.size(); ++i)
        m_switches[i]->setChecked(vorgaben.isPrinted(PrintSwitches[i].element));
    m_spacing->setTwips(vorgaben.Abstand);

    m_percent->clear();
    const QString percentText = m_texts.text(Text::Percent);
    const auto offer = [&](int percent) {
        m_percent->addItem(percentText.arg(percent), percent);
    };
    for (const int percent : Percents)
        offer(percent);
    if (m_percent->findData(measures.bildprozent) < 0)
        offer(measures.bildprozent); // written by hand
    m_percent->setCurrentIndex(m_percent->findData(measures.bildprozent));
    m_fontFactor->setValue(measures.fontfaktor);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_columns[i]->setTwips(measures.spaltenbreiten[i]);
}

void ContentsPanel::takeInto(Druckvorgaben &vorgaben) const
{
    const auto put = [](const QCheckBox *box, qint16 before, qint16 &value) {
        value = box->isChecked() == (before == 1) ? before : static_cast<qint16>(box->isChecked());
    };
    put(m_chart, m_vorgaben.Bildprint, vorgaben.Bildprint);
    for (std::size_t i = 0; i < m_switches.size(); ++i) {
        const Element element = PrintSwitches[i].element;
        put(m_switches[i], m_vorgaben.print(element), vorgaben.print(element));
    }
    vorgaben.Abstand = m_spacing->twips();
}

ReportMeasures ContentsPanel::measures() const
{
    ReportMeasures measures = m_measures;
    measures.bildprozent = m_percent->currentData().toInt();
    // The box rounds to two decimals.
    if (qAbs(m_fontFactor->value() - measures.fontfaktor) >= 0.005)
        measures.fontfaktor = m_fontFactor->value();
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        measures.spaltenbreiten[i] = m_columns[i]->wholeTwips();
    return measures;
}

} // namespace kalvenor::settings
