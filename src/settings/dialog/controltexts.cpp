// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/dialog/controltexts.h"

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

/// Puts the value at the first place of this kind at or behind `from`, which moves behind it; without one, at the end.
void fill(QString &text, const QString &place, const QString &value, qsizetype &from)
{
    qsizetype at = text.indexOf(place, from);
    if (at >= 0) {
        text.replace(at, place.size(), value);
    } else {
        text += u' ';
        at = text.size();
        text += value;
    }
    from = at + value.size();
}

} // namespace

void ControlTexts::load(language::Sprachmodul &texts)
{
    printingCaption = texts.text(Text::PrintingDialog);
    cancel = texts.text(Text::PrintingCancel);
    device = texts.text(Text::PrintingDevice);
    page = texts.text(Text::PrintingPage);
    zoomChoices = texts.text(Text::ZoomChoices);
}

QString ControlTexts::deviceLine(const QString &printer, const QString &place) const
{
    QString line = device;
    qsizetype from = 0;
    fill(line, u"%s"_s, printer, from);
    fill(line, u"%s"_s, place, from);
    return line;
}

QString ControlTexts::pageLine(int number, int total) const
{
    QString line = page;
    qsizetype from = 0;
    fill(line, u"%d"_s, QString::number(number), from);
    return line + u' ' + QString::number(total);
}

std::array<QString, 4> ControlTexts::zooms() const
{
    const QStringList given = zoomChoices.split(u'|');
    const QStringList usual = ControlTexts().zoomChoices.split(u'|');
    std::array<QString, 4> choices;
    const bool complete = given.size() >= static_cast<qsizetype>(choices.size());
    for (std::size_t i = 0; i < choices.size(); ++i) {
        const auto n = static_cast<qsizetype>(i);
        // A single text is no list of choices but the mark of a missing text.
        const bool usable = (complete || given.size() > 1) && n < given.size() && !given[n].trimmed().isEmpty();
        choices[i] = usable ? given[n].trimmed() : usual[n];
    }
    return choices;
}

} // namespace kalvenor::settings
