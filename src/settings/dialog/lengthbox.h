// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printdocument.h"
#include <QDoubleSpinBox>

namespace kalvenor::settings {

/// A number without superfluous noughts behind its point.
class NumberBox : public QDoubleSpinBox {
    Q_OBJECT
public:
    NumberBox(double least, double most, int decimals, QWidget *parent);
    QString textFromValue(double value) const override;
};

/// A length shown in millimetres. One that the user leaves as it is keeps its twips exactly, unless it lies outside the
/// box's range.
class LengthBox : public NumberBox {
    Q_OBJECT
public:
    LengthBox(double most, int decimals, QWidget *parent);

    void setTwips(double twips);
    double twips() const;
    /// To the nearest twip.
    print::Twips wholeTwips() const;

private:
    double m_twips = 0;
    double m_shown = 0; ///< for them, in millimetres
};

} // namespace kalvenor::settings
