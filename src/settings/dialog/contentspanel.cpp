// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/contentspanel.h"

#include "language/forms/form.h"
#include "language/forms/widgetform.h"
#include "settings/dialog/lengthbox.h"
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

namespace {

using language::setDesignText;

constexpr int Percents[] = {50, 75, 100, 125, 150, 200, 250, 300, 400, 500, 600};
constexpr double WidestSpacing = 25.4; // millimetres
constexpr double WidestColumn = 500;   // millimetres

struct PrintSwitch {
    Element element;
    const char *name;
    const char *caption;
};
constexpr PrintSwitch PrintSwitches[] = {
    {TitelKriterien, "TitelKriterien", "1216Überschrift der Auswahlkriterien drucken"},
    {TitelAltersliste, "TitelAltersliste", "1218Überschrift der Altersliste drucken"},
    {NeueSeite, "NeueSeite", "1204Liste auf neuer Seite beginnen"},
    {Header, "Header", "1219Kopfzeile drucken"},
    {Footer, "Footer", "1220Fußzeile drucken"}};

QCheckBox *checkBox(const char *name, const char *caption, QWidget *parent)
{
    auto *box = new QCheckBox(parent);
    box->setObjectName(QLatin1String(name));
    setDesignText(box, QString::fromUtf8(caption));
    return box;
}

void addRow(QFormLayout *form, const char *caption, QWidget *field)
{
    auto *label = new QLabel(field->parentWidget());
    setDesignText(label, QString::fromUtf8(caption));
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
    setDesignText(group, u"20859Gedruckt wird"_s);
    auto *column = new QVBoxLayout(group);
    m_chart = checkBox("Bildprint", "1221Grafik drucken", group);
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
    setDesignText(group, u"20860Grafik"_s);
    auto *form = new QFormLayout(group);
    m_percent = new QComboBox(group);
    m_percent->setObjectName(u"Bildgroesse"_s);
    setDesignText(m_percent, {}, u"20861Höhe der Grafik; bei 100 % ist sie geformt wie im Fenster"_s);
    m_fontFactor = new NumberBox(0.5, 20, 2, group);
    m_fontFactor->setObjectName(u"Fontfaktor"_s);
    m_fontFactor->setSingleStep(0.5);
    setDesignText(m_fontFactor, {}, u"20862Bei 3 sind die Schriften so groß wie der Text der Umgebung"_s);
    addRow(form, "20850Größe der Grafik", m_percent);
    addRow(form, "20851Schriftgröße der Grafik", m_fontFactor);
    connect(m_chart, &QCheckBox::toggled, group, &QWidget::setEnabled);
    return group;
}

QWidget *ContentsPanel::makeList()
{
    auto *group = new QGroupBox(this);
    setDesignText(group, u"20808Altersliste"_s);
    auto *form = new QFormLayout(group);
    const QString unit = u' ' + language::shownText(m_texts, 20845, u"mm"_s);
    m_spacing = new LengthBox(WidestSpacing, 2, group);
    m_spacing->setObjectName(u"Abstand"_s);
    m_spacing->setSingleStep(0.1);
    m_spacing->setSuffix(unit);
    addRow(form, "20849Abstand der Zeilen", m_spacing);
    auto *widths = new QLabel(group);
    setDesignText(widths, u"20852Spaltenbreiten der Altersliste"_s);
    form->addRow(widths);
    constexpr std::pair<const char *, const char *> columns[] = {
        {"Spalten_1", "20853Alter"}, {"Spalten_2", "20854Geschlecht"}, {"Spalten_4", "20855Name"}};
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        m_columns[i] = new LengthBox(WidestColumn, 1, group);
        m_columns[i]->setObjectName(QLatin1String(columns[i].first));
        m_columns[i]->setSuffix(unit);
        // A width of 0 is a share of what the other columns leave.
        m_columns[i]->setSpecialValueText(language::shownText(m_texts, 20863, u"übriger Platz"_s));
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
    const QString percentText = language::shownText(m_texts, 20856, u"%1 %"_s);
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
