// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include "settings/store/vorgabendatei.h"
#include <array>
#include <QWidget>

class QCheckBox;
class QComboBox;

namespace kalvenor::settings {

class LengthBox;
class NumberBox;

/// What is printed, the chart's size and the measures of the age list. A value that the user leaves alone stays
/// exactly as it is.
class ContentsPanel : public QWidget {
    Q_OBJECT
public:
    explicit ContentsPanel(language::Sprachmodul &texts, QWidget *parent = nullptr);

    void setContents(const Druckvorgaben &vorgaben, const ReportMeasures &measures);
    /// Puts switches and spacing in.
    void takeInto(Druckvorgaben &vorgaben) const;
    ReportMeasures measures() const;

private:
    QWidget *makeSwitches();
    QWidget *makeChart();
    QWidget *makeList();

    language::Sprachmodul &m_texts;
    Druckvorgaben m_vorgaben;
    ReportMeasures m_measures;
    QCheckBox *m_chart;
    std::array<QCheckBox *, 5> m_switches;
    QComboBox *m_percent;
    NumberBox *m_fontFactor;
    LengthBox *m_spacing;
    std::array<LengthBox *, 3> m_columns;
};

} // namespace kalvenor::settings
