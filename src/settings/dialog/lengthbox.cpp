// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/lengthbox.h"

#include <cmath>

namespace kalvenor::settings {

namespace {

constexpr double TwipsPerMillimetre = 1440 / 25.4;

}

NumberBox::NumberBox(double least, double most, int decimals, QWidget *parent) : QDoubleSpinBox(parent)
{
    setDecimals(decimals);
    setRange(least, most);
    setAlignment(Qt::AlignRight);
    setMinimumWidth(13 * fontMetrics().averageCharWidth() + 24); // air for the unit
}

QString NumberBox::textFromValue(double value) const
{
    return locale().toString(value, 'f', QLocale::FloatingPointShortest);
}

LengthBox::LengthBox(double most, int decimals, QWidget *parent) : NumberBox(0, most, decimals, parent)
{
}

void LengthBox::setTwips(double twips)
{
    const double millimetres = twips / TwipsPerMillimetre;
    setValue(millimetres);
    m_shown = value();
    m_twips = millimetres >= minimum() && millimetres <= maximum() ? twips : m_shown * TwipsPerMillimetre;
}

double LengthBox::twips() const
{
    return value() == m_shown ? m_twips : std::nearbyint(value() * TwipsPerMillimetre);
}

print::Twips LengthBox::wholeTwips() const
{
    return static_cast<print::Twips>(std::nearbyint(twips()));
}

} // namespace kalvenor::settings
