// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/like.h"
#include "platform/jet/sortkey.h"
#include "platform/print/pdfwriter.h"
#include "statistics/alter.h"
#include "statistics/grafik.h"

#include <benchmark/benchmark.h>
#include <QGuiApplication>
#include <QTemporaryDir>

// What runs once for each of a million rows: hotpaths [--benchmark_filter=…]
namespace kalvenor {
namespace {

/// 1,000 list names: family name, given names, padded as the host pads them.
const QStringList &names()
{
    static const QStringList list = [] {
        const QStringList family{u"Müller"_qs, u"Großmann"_qs, u"von Hohenstaufen"_qs, u"Øster-Lund"_qs, u"Schmidt"_qs};
        const QStringList given{u"Johann Georg"_qs, u"Anna Katharina"_qs, u"Jürgen"_qs, u"Zoë"_qs};
        QStringList made;
        for (int i = 0; i < 1000; ++i)
            made << (family[i % 5] + u", "_qs + given[i % 4] + u' ' + QString::number(i * 7919 % 1000))
                            .leftJustified(50) +
                        u"01.01.1800"_qs;
        return made;
    }();
    return list;
}

void sortKey(benchmark::State &state)
{
    std::vector<std::uint8_t> key;
    qsizetype i = 0;
    for (auto _ : state) {
        key.clear();
        jet::appendGeneralKey(names()[i++ % names().size()], key);
        benchmark::DoNotOptimize(key.data());
    }
}
BENCHMARK(sortKey);

void compare(benchmark::State &state)
{
    qsizetype i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(jet::compareGeneral(names()[i % 1000], names()[(i + 5) % 1000]));
        ++i;
    }
}
BENCHMARK(compare);

void like(benchmark::State &state, const QString &text)
{
    const jet::LikePattern pattern(text);
    qsizetype i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(pattern.matches(names()[i++ % names().size()]));
}
BENCHMARK_CAPTURE(like, prefix, u"mül*"_qs);
BENCHMARK_CAPTURE(like, infix, u"*georg 7*"_qs);
BENCHMARK_CAPTURE(like, hopeless, u"*a*a*a*a*a*!"_qs);

void ageLine(benchmark::State &state)
{
    qsizetype i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(statistics::alterszeile(static_cast<double>(i % 36'500), names()[i % names().size()]));
        ++i;
    }
}
BENCHMARK(ageLine);

void chartPerson(benchmark::State &state)
{
    statistics::Grafikermittlung figures({});
    int i = 0;
    for (auto _ : state) {
        const double birth = -i * 7919LL % 146'000;
        figures.add(birth, birth + i % 36'500,
                    i % 2 == 0 ? statistics::Geschlecht::Mann : statistics::Geschlecht::Frau);
        ++i;
    }
    benchmark::DoNotOptimize(figures);
}
BENCHMARK(chartPerson);

/// The argument is the number of rows.
void pdf(benchmark::State &state)
{
    PrintDocument document;
    document.footer.text = u"||%d"_qs;
    document.add(TableStart{columnsFromFormat(u"<6000|^1700|>1500"), {{{u"Name"_qs}, {u"Born"_qs}, {u"Age"_qs}}}});
    for (qsizetype i = 0; i < state.range(0); ++i)
        document.add(TableRow{{{names()[i % 1000]}, {u"12.03.1801"_qs}, {QString::number(i % 97)}}});
    const QTemporaryDir folder;
    for (auto _ : state)
        writePdf(PageLayout(document), u"Ages"_qs, folder.filePath(u"ages.pdf"_qs));
}
BENCHMARK(pdf)->Arg(5'000)->Arg(50'000)->Arg(500'000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kalvenor

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
