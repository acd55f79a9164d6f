// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/panel/sexbox.h"

#include "language/forms/widgetform.h"
#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

QCheckBox *makeSexBox(QWidget *parent, int index, language::Text caption)
{
    auto *box = new QCheckBox(parent);
    box->setObjectName(u"geschlechtalter_%1"_s.arg(index));
    box->setChecked(true);
    language::setDesignText(box, caption);
    return box;
}

} // namespace kalvenor::statistics
