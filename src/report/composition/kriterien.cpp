// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/composition/kriterien.h"

#include "language/forms/form.h"
#include "platform/basic/date.h"
#include <array>

using namespace Qt::StringLiterals;

namespace kalvenor::report {

namespace {

constexpr qint16 LabelName = 1215;
constexpr qint16 LabelSex = 1222;
constexpr std::array<qint16, 3> LabelDates{1223, 1224, 1225}; // birth, death, last change
constexpr qint16 LabelList = 1226;
constexpr qint16 LabelRelatives = 1227;
constexpr qint16 LabelGrouping = 1228;
constexpr qint16 LabelPersons = 1229;
constexpr qint16 LabelAverages = 1206;
constexpr qint16 LabelRange = 1209;
constexpr qint16 LabelLeftOut = 1208;

class Lines {
public:
    explicit Lines(language::Sprachmodul &language) : m_language(language) {}

    QString text(qint16 id, const QString &germanText) { return language::shownText(m_language, id, germanText); }
    void add(qint16 label, const QString &what) { lines << m_language.text(label) + what; }

    QStringList lines;

private:
    language::Sprachmodul &m_language;
};

/// "" where neither bound is a date.
QString range(Lines &lines, const std::array<QString, 2> &bounds)
{
    const basic::DateOrder order = basic::systemDateOrder();
    const bool from = basic::isDate(bounds[0], order);
    const bool to = basic::isDate(bounds[1], order);
    if (from && to)
        return lines.text(20963, u"%1 bis %2"_s).arg(bounds[0], bounds[1]);
    if (from)
        return lines.text(20961, u"ab %1"_s).arg(bounds[0]);
    return to ? lines.text(20962, u"bis %1"_s).arg(bounds[1]) : QString();
}

void addFilter(Lines &lines, const selection::Filter &filter)
{
    const QString pattern = filter.Presse.trimmed();
    if (!QString(pattern).remove(u'*').isEmpty()) // filtering puts stars around nothing, too
        lines.add(LabelName, pattern);
    const bool men = filter.Geschlechtfilter[0] == 1;
    const bool women = filter.Geschlechtfilter[1] == 1;
    if (men || women)
        lines.add(LabelSex, men && women ? lines.text(20960, u"Männer und Frauen"_s)
                            : men        ? lines.text(20958, u"Männer"_s)
                                         : lines.text(20959, u"Frauen"_s));
    const QString dates = range(lines, filter.Presse_Datum);
    for (std::size_t i = 0; i < LabelDates.size(); ++i) {
        if (filter.Datumfilter[i] == 1 && !dates.isEmpty())
            lines.add(LabelDates[i], dates);
    }
    lines.add(LabelList, filter.Filterliste == selection::PersonList::Unmarked
                             ? lines.text(20956, u"nicht markierte Personen"_s)
                             : lines.text(20957, u"markierte Personen"_s));
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
        relatives << lines.text(20954, u"Kinder und Nachkommen"_s);
    if (criteria.relatives.parents)
        relatives << lines.text(20955, u"Eltern und Vorfahren"_s);
    if (!relatives.isEmpty())
        lines.add(LabelRelatives, relatives.join(u", "_s));
    lines.add(LabelGrouping, statistik.nachGeburtsjahr ? lines.text(20952, u"nach Geburtsjahr"_s)
                                                       : lines.text(20953, u"nach Sterbejahr"_s));
    lines.add(LabelPersons, joined(figures.anzahl));
    lines.add(LabelAverages, joined(figures.durchschnitt));
    if (figures.spanne)
        lines.add(LabelRange, figures.spanne->trimmed());
    QStringList leftOut;
    if (figures.zahlen.ohneDatum > 0)
        leftOut << lines.text(20964, u"%1 ohne Geburts- oder Sterbedatum"_s).arg(figures.zahlen.ohneDatum);
    if (figures.zahlen.nichtNachGeburt > 0)
        leftOut << lines.text(20965, u"%1 nicht nach der Geburt gestorben"_s).arg(figures.zahlen.nichtNachGeburt);
    if (const qint64 notListed = figures.zahlen.gezaehlt - static_cast<qint64>(listedPersons); notListed > 0)
        leftOut << lines.text(20973, u"%1 nach Geschlecht nicht in der Altersliste"_s).arg(notListed);
    if (!leftOut.isEmpty())
        lines.add(LabelLeftOut, leftOut.join(u", "_s));
    return lines.lines;
}

} // namespace kalvenor::report
