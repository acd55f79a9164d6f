// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/sexbox.h"

#include "language/widgetform.h"
#include <QCheckBox>

namespace kalvenor::statistics {

QCheckBox *makeSexBox(QWidget *parent, int index, const char *caption)
{
    auto *box = new QCheckBox(parent);
    box->setObjectName(QStringLiteral("geschlechtalter_%1").arg(index));
    box->setChecked(true);
    language::setDesignText(box, QString::fromUtf8(caption));
    return box;
}

} // namespace kalvenor::statistics
