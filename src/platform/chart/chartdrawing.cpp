// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartdrawing.h"

#include "platform/chart/chartseries.h"

#include <cmath>
#include <QChart>
#include <QGraphicsItem>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QPainter>
#include <QPalette>
#include <QValueAxis>

using namespace Qt::StringLiterals;

namespace kalvenor::chart {
namespace {

/// What Qt Charts has not: the marks (the legend shows the same), the texts, the legend, the leaders of a pie.
class Writing : public QGraphicsItem {
public:
    Writing(const ChartSubject &subject, const ChartLayout &layout, const ChartStyle &style, QSizeF size)
        : m_subject(subject), m_layout(layout), m_style(style), m_size(size)
    {
        setZValue(1); // above the chart
    }
    QRectF boundingRect() const override { return {QPointF(), m_size}; }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        painter->setRenderHint(QPainter::Antialiasing);
        drawMarks(*painter, m_subject, m_layout, m_style);
        for (const LegendSwatch &swatch : m_layout.swatches)
            drawSwatch(*painter, m_subject, swatch.index, swatch.box, m_style.dark);
        painter->setPen(QPen(m_style.grid, 1));
        painter->setBrush(Qt::NoBrush);
        for (const QPolygonF &leader : m_layout.leaders)
            painter->drawPolyline(leader);
        QColor veil = m_style.ground;
        veil.setAlphaF(0.8F);
        for (const PlacedText &text : m_layout.texts) {
            if (text.role == TextRole::Figure && m_subject.kind != ChartKind::Bars)
                painter->fillRect(text.outline().boundingRect(), veil); // lines and bars pass behind it
            painter->setPen(m_style.text);
            text.draw(*painter);
        }
    }

private:
    const ChartSubject &m_subject;
    const ChartLayout &m_layout;
    ChartStyle m_style;
    QSizeF m_size;
};

QColor mixed(const QColor &one, const QColor &other, float part)
{
    const auto mix = [part](float a, float b) {
        return a + (b - a) * part;
    };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

void prepareAxis(QValueAxis &axis, const ChartStyle &style, bool grid)
{
    axis.setLabelsVisible(false);
    axis.setLinePen(QPen(style.text, 1));
    axis.setGridLineVisible(grid);
    axis.setGridLinePen(QPen(style.grid, 1));
}

QChart *makeChart(const ChartSubject &subject, const ChartLayout &layout, const ChartStyle &style, QSizeF size)
{
    auto *chart = new QChart;
    chart->setBackgroundVisible(false);
    chart->legend()->hide();
    chart->setMargins({});
    chart->resize(size);
    chart->setPlotArea(layout.plot);
    if (subject.kind == ChartKind::Pie) {
        addPie(*chart, subject, style);
        return chart;
    }
    auto *rows = new QValueAxis;
    auto *values = new QValueAxis;
    chart->addAxis(rows, Qt::AlignBottom);
    chart->addAxis(values, Qt::AlignLeft);
    rows->setRange(-0.5, subject.figures.rowCount() - 0.5);
    rows->setTickCount(2);
    values->setRange(layout.axis.low, layout.axis.high);
    values->setTickCount(layout.axis.intervals() + 1);
    prepareAxis(*rows, style, false);
    prepareAxis(*values, style, subject.look.grid);
    addSeries(*chart, subject, style);
    chart->layout()->activate(); // places the axes, which otherwise waits for the event loop
    return chart;
}

} // namespace

ChartStyle paperStyle()
{
    QFont font(u"Arial"_s);
    font.setPixelSize(ChartTextPoints * 96 / 72);
    return {font, Qt::white, QColor(0x20, 0x20, 0x20), QColor(0xc8, 0xc8, 0xc8), false};
}

ChartStyle paletteStyle(const QPalette &palette, const QFont &font)
{
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    return {font, ground, text, mixed(ground, text, 0.25F), ground.lightnessF() < 0.5F};
}

ChartDrawing::ChartDrawing(const ChartTable &table, const ChartLook &look, QSizeF size, const ChartStyle &style)
    : m_size(size), m_subject{chartFigures(table, chartKind(look.type)), chartKind(look.type), look},
      m_layout(layoutChart(m_subject, size, style.font)), m_scene(std::make_unique<QGraphicsScene>())
{
    m_scene->setItemIndexMethod(QGraphicsScene::NoIndex);
    m_scene->setSceneRect({QPointF(), size});
    m_scene->setBackgroundBrush(style.ground);
    if (!m_subject.figures.isEmpty())
        m_scene->addItem(makeChart(m_subject, m_layout, style, size));
    m_scene->addItem(new Writing(m_subject, m_layout, style, size));
}

ChartDrawing::~ChartDrawing() = default;

void ChartDrawing::paint(QPainter &painter, const QRectF &target) const
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    m_scene->render(&painter, target, {QPointF(), m_size}, Qt::IgnoreAspectRatio);
}

QString ChartDrawing::textAt(QPointF place) const
{
    const auto hit = figureAt(m_subject, m_layout, place);
    if (!hit)
        return {};
    const ChartFigures &figures = m_subject.figures;
    const QString figure = chartFigureText(figures.value(hit->column, hit->row), m_subject.look.locale);
    QStringList name;
    for (const QString &part : {figures.series[hit->column], figures.rows[hit->row]}) {
        if (!part.isEmpty())
            name << part;
    }
    const QString format = m_subject.look.valueFormat.isEmpty() ? u"%1: %2"_s : m_subject.look.valueFormat;
    return format.arg(name.join(u", "_s), figure);
}

} // namespace kalvenor::chart
