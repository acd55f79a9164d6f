// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/composition/kriterien.h"

#include "language/texts/sprache.h"
#include "platform/basic/date.h"
#include <array>

using namespace Qt::StringLiterals;

namespace kalvenor::report {

using language::Text;

namespace {

constexpr std::array<Text, 3> LabelDates{Text::CriteriaBirth, Text::CriteriaDeath, Text::CriteriaChange};

class Lines {
public:
    explicit Lines(language::Sprachmodul &language) : m_language(language) {}

    QString text(Text id) { return m_language.text(id); }
    QString day(qint64 number) { return m_language.dayInWords(number); }
    void add(Text label, const QString &what) { lines << m_language.text(label) + what; }

    QStringList lines;

private:
    language::Sprachmodul &m_language;
};

/// The days as they were read; "" where neither bound is a date.
QString range(Lines &lines, const std::array<QString, 2> &bounds)
{
    const basic::DateOrder order = basic::systemDateOrder();
    const auto from = selection::boundDay(bounds[0], order);
    const auto to = selection::boundDay(bounds[1], order);
    if (from && to)
        return lines.text(Text::PeriodFromTo).arg(lines.day(*from), lines.day(*to));
    if (from)
        return lines.text(Text::PeriodFrom).arg(lines.day(*from));
    return to ? lines.text(Text::PeriodTo).arg(lines.day(*to)) : QString();
}

void addFilter(Lines &lines, const selection::Filter &filter)
{
    const QString pattern = filter.Presse.trimmed();
    if (!QString(pattern).remove(u'*').isEmpty()) // filtering puts stars around nothing, too
        lines.add(Text::CriteriaName, pattern);
    const bool men = filter.Geschlechtfilter[0] == 1;
    const bool women = filter.Geschlechtfilter[1] == 1;
    if (men || women)
        lines.add(Text::CriteriaSex, men && women ? lines.text(Text::MenAndWomen)
                                     : men        ? lines.text(Text::ReportMen)
                                                  : lines.text(Text::ReportWomen));
    const QString dates = range(lines, filter.Presse_Datum);
    for (std::size_t i = 0; i < LabelDates.size(); ++i) {
        if (filter.Datumfilter[i] == 1 && !dates.isEmpty())
            lines.add(LabelDates[i], dates);
    }
    lines.add(Text::CriteriaList, filter.Filterliste == selection::PersonList::Unmarked
                                      ? lines.text(Text::OfUnmarkedPersons)
                                      : lines.text(Text::OfMarkedPersons));
}

QString joined(const std::array<QString, 3> &texts)
{
    return u"%1 | %2 | %3"_s.arg(texts[0], texts[1], texts[2]);
}

} // namespace

QStringList kriterien(const Auswahlkriterien &criteria, const statistics::Statistik &statistik,
                      const statistics::Grafikzahlen &figures, std::size_t listedPersons,
                      language::Sprachmodul &language)
{
    Lines lines(language);
    if (criteria.filtered)
        addFilter(lines, criteria.filter);
    QStringList relatives;
    if (criteria.relatives.children)
        relatives << lines.text(Text::ChildrenAndDescendants);
    if (criteria.relatives.parents)
        relatives << lines.text(Text::ParentsAndAncestors);
    if (!relatives.isEmpty())
        lines.add(Text::CriteriaRelatives, relatives.join(u", "_s));
    lines.add(Text::CriteriaGrouping,
              statistik.nachGeburtsjahr ? lines.text(Text::GroupedByBirth) : lines.text(Text::GroupedByDeath));
    lines.add(Text::CriteriaPersons, joined(figures.anzahl));
    lines.add(Text::CriteriaAverages, joined(figures.durchschnitt));
    if (figures.spanne)
        lines.add(Text::CriteriaAgeRange, figures.spanne->trimmed());
    QStringList leftOut;
    if (figures.zahlen.ohneDatum > 0)
        leftOut << lines.text(Text::LeftOutWithoutDate).arg(figures.zahlen.ohneDatum);
    if (figures.zahlen.nichtNachGeburt > 0)
        leftOut << lines.text(Text::PersonsNotDiedAfterBirth).arg(figures.zahlen.nichtNachGeburt);
    if (const qint64 notListed = figures.zahlen.gezaehlt - static_cast<qint64>(listedPersons); notListed > 0)
        leftOut << lines.text(Text::LeftOutBySex).arg(notListed);
    if (!leftOut.isEmpty())
        lines.add(Text::CriteriaLeftOut, leftOut.join(u", "_s));
    return lines.lines;
}

} // namespace kalvenor::report
