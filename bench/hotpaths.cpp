// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/order/like.h"
#include "platform/jet/order/sortkey.h"
#include "platform/print/pdfwriter.h"
#include "statistics/ages/alter.h"
#include "statistics/ages/altersliste.h"
#include "statistics/figures/grafik.h"

#include <benchmark/benchmark.h>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

// What runs once for each of a million rows: hotpaths [--benchmark_filter=…]
namespace kalvenor {
namespace {

/// 1,000 list names: family name, given names, padded as the host pads them.
const QStringList &names()
{
    static const QStringList list = [] {
        const QStringList family{u"Müller"_s, u"Großmann"_s, u"von Hohenstaufen"_s, u"Øster-Lund"_s, u"Schmidt"_s};
        const QStringList given{u"Johann Georg"_s, u"Anna Katharina"_s, u"Jürgen"_s, u"Zoë"_s};
        QStringList made;
        for (int i = 0; i < 1000; ++i)
            made << (family[i % 5] + u", "_s + given[i % 4] + u' ' + QString::number(i * 7919 % 1000))
                            .leftJustified(50) +
                        u"01.01.1800"_s;
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
BENCHMARK_CAPTURE(like, prefix, u"mül*"_s);
BENCHMARK_CAPTURE(like, infix, u"*georg 7*"_s);
BENCHMARK_CAPTURE(like, hopeless, u"*a*a*a*a*a*!"_s);

void ageLine(benchmark::State &state)
{
    qsizetype i = 0;
    for (auto _ : state) {
        const statistics::Alterszeile line{.tage = static_cast<double>(i % 36'500),
                                           .listname = names()[i % names().size()]};
        benchmark::DoNotOptimize(line.text());
        ++i;
    }
}
BENCHMARK(ageLine);

void chartPerson(benchmark::State &state)
{
    statistics::Grafikermittlung figures({});
    int i = 0;
    for (auto _ : state) {
        const auto birth = static_cast<double>(-i * 7919LL % 146'000);
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
    print::PrintDocument document;
    document.footer.text = u"||%d"_s;
    document.add(print::TableStart{{{.width = 6000}, {print::Alignment::Centre, 1700}, {print::Alignment::Right, 1500}},
                                   {{{u"Name"_s}, {u"Born"_s}, {u"Age"_s}}}});
    for (qsizetype i = 0; i < state.range(0); ++i)
        document.add(print::TableRow{{{names()[i % 1000]}, {u"12.03.1801"_s}, {QString::number(i % 97)}}});
    const QTemporaryDir folder;
    for (auto _ : state)
        print::writePdf(print::PageLayout(document), u"Ages"_s, folder.filePath(u"ages.pdf"_s));
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
