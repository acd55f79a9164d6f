// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/chartcommand.h"

#include "app/start/startedprogram.h"
#include "platform/chart/chartfigures.h"
#include "platform/chart/chartpicture.h"
#include "statistics/figures/grafikbild.h"
#include <algorithm>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

using statistics::Grafikzahlen;

constexpr int LargestSide = 20'000; ///< of a picture, in pixels

/// Columns as wide as their widest text, the first one to the left, the others to the right.
QString aligned(const std::vector<QStringList> &lines)
{
    std::vector<qsizetype> widths(static_cast<std::size_t>(lines.front().size()), 0);
    for (const QStringList &line : lines) {
        for (qsizetype i = 0; i < line.size(); ++i)
            widths[static_cast<std::size_t>(i)] = std::max(widths[static_cast<std::size_t>(i)], line[i].size());
    }
    QString text;
    for (const QStringList &line : lines) {
        text += line.front().leftJustified(widths.front());
        for (qsizetype i = 1; i < line.size(); ++i)
            text += u"  "_s + line[i].rightJustified(widths[static_cast<std::size_t>(i)]);
        text += u'\n';
    }
    return text;
}

/// What became of the marked persons, so that nobody is left out silently.
QString leftOut(const statistics::Personenzahlen &persons)
{
    const QString marked = QString::number(persons.markiert);
    const auto line = [&](qint64 number, const QString &what) {
        return QString::number(number).rightJustified(marked.size()) + u' ' + what + u'\n';
    };
    QString text = line(persons.markiert, u"persons marked"_s);
    text += line(persons.gezaehlt, u"counted, %1 of them of unknown sex"_s.arg(persons.ohneGeschlecht));
    text += line(persons.ohneDatum, u"without a date of birth or death"_s);
    text += line(persons.nichtNachGeburt, u"who did not die after their birth"_s);
    const qint64 rest = persons.markiert - persons.gezaehlt - persons.ohneDatum - persons.nichtNachGeburt;
    return rest == 0 ? text : text + line(rest, u"without a Counter"_s);
}

QString readableText(const Grafikzahlen &figures)
{
    const auto row = [](const QString &label, const std::array<QString, 3> &texts) {
        return QStringList{label, texts[0], texts[1], texts[2]};
    };
    QString text;
    if (!figures.tabelle.isEmpty()) {
        std::vector<QStringList> lines{QStringList{u"century"_s} + figures.tabelle.columnLabels};
        for (std::size_t i = 0; i < figures.tabelle.data.size(); ++i) {
            QStringList line{figures.tabelle.rowLabels[static_cast<qsizetype>(i)].trimmed()};
            for (const QString &value : figures.tabelle.data[i])
                line << chart::chartFigureText(value.toDouble(), QLocale::c());
            lines.push_back(line);
        }
        text = aligned(lines) + u'\n';
    }
    text += aligned({{QString(), u"men"_s, u"women"_s, u"all"_s},
                     row(u"persons"_s, figures.anzahl),
                     row(u"average age"_s, figures.durchschnitt)});
    if (figures.spanne)
        text += u"lowest | highest age: "_s + *figures.spanne + u'\n';
    return text + u'\n' + leftOut(figures.zahlen);
}

QByteArray tabSeparated(const chart::ChartTable &table)
{
    QString text = u"century\t"_s + table.columnLabels.join(u'\t') + u'\n';
    for (std::size_t i = 0; i < table.data.size(); ++i)
        text += table.rowLabels[static_cast<qsizetype>(i)] + u'\t' + table.data[i].join(u'\t') + u'\n';
    return text.toUtf8();
}

QByteArray jsonList(const QStringList &texts)
{
    QByteArrayList items;
    for (const QString &text : texts)
        items << jsonText(text);
    return '[' + items.join(',') + ']';
}

QByteArray jsonBySex(const std::array<QString, 3> &texts)
{
    return "{\"men\":" + jsonText(texts[0]) + ",\"women\":" + jsonText(texts[1]) + ",\"all\":" + jsonText(texts[2]) +
           '}';
}

QByteArray json(const Grafikzahlen &figures)
{
    const chart::ChartTable &table = figures.tabelle;
    QByteArrayList rows;
    for (std::size_t i = 0; i < table.data.size(); ++i)
        rows << "{\"label\":" + jsonText(table.rowLabels[static_cast<qsizetype>(i)]) +
                    ",\"values\":" + jsonList(table.data[i]) + '}';
    return "{\"columns\":" + jsonList(table.columnLabels) + ",\"rows\":[" + rows.join(',') +
           "],\"counts\":" + jsonBySex(figures.anzahl) + ",\"averages\":" + jsonBySex(figures.durchschnitt) +
           ",\"range\":" + (figures.spanne ? jsonText(*figures.spanne) : QByteArray("null")) +
           ",\"without_date\":" + jsonText(figures.ohneDatum) + "}\n";
}

} // namespace

QByteArray chartOutput(const Grafikzahlen &figures, Format format)
{
    switch (format) {
    case Format::Tsv:
        return tabSeparated(figures.tabelle);
    case Format::Json:
        return json(figures);
    case Format::Text:
        break;
    }
    return readableText(figures).toUtf8();
}

int runChart(const basic::WindowsPath &programFolder, const ChartCommand &command)
{
    StartedProgram started(programFolder);
    if (!started.ready)
        return Failed;
    Program &program = started.program;
    statistics::Statistik statistik{.grafiktyp = *statistics::grafiktypAus(static_cast<int>(chart::ChartType::Bar))};
    command.statistik.applyTo(statistik);
    Grafikzahlen figures;
    {
        desktop::TerminalProgress terminal(started.progress(language::Text::ComputingChart));
        figures = statistics::grafikermitteln(program.databases, statistik, terminal.progress());
    }
    if (!command.output.isEmpty()) {
        chart::ChartLook look = statistics::grafiklook(program.language, program.host, statistik);
        look.emptyText = program.language.text(statistics::leerGrund(figures.zahlen));
        chart::writeChart(figures.tabelle, look, command.size, command.output);
    }
    desktop::writeOutput(chartOutput(figures, command.format));
    desktop::flushOutput();
    return started.done();
}

QSize pictureSize(const QString &word)
{
    static const QRegularExpression Shape(u"^([1-9][0-9]{0,4})x([1-9][0-9]{0,4})$"_s);
    const auto match = Shape.match(word);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    return match.hasMatch() && std::max(size.width(), size.height()) <= LargestSide ? size : QSize();
}

} // namespace kalvenor::app
