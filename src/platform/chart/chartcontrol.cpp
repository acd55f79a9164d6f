// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/chart/chartcontrol.h"

#include "platform/chart/chartdrawing.h"
#include "platform/chart/chartpicture.h"

#include <algorithm>
#include <QClipboard>
#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QTableWidget>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace kalvenor::chart {
namespace {

constexpr double CopyDpi = 192; // sharp when pasted into a letter

} // namespace

ChartControl::ChartControl(QWidget *parent)
    : QWidget(parent), copyAction(new QAction(this)), saveAction(new QAction(this)), gridAction(new QAction(this)),
      valuesAction(new QAction(this)), tableAction(new QAction(this)), m_figures(new QTableWidget(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMouseTracking(true);
    for (QAction *action : {gridAction, valuesAction, tableAction})
        action->setCheckable(true);
    gridAction->setChecked(m_look.grid);
    valuesAction->setChecked(m_look.values);
    auto *line = new QAction(this);
    line->setSeparator(true);
    addActions({copyAction, saveAction, line, gridAction, valuesAction, tableAction});
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);

    m_figures->setObjectName(u"chartFigures"_s);
    m_figures->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_figures->setContextMenuPolicy(Qt::NoContextMenu); // goes up to the chart's
    m_figures->setTabKeyNavigation(false);
    m_figures->setSelectionMode(QAbstractItemView::SingleSelection);
    m_figures->hide();

    connect(copyAction, &QAction::triggered, this, &ChartControl::copyPicture);
    connect(saveAction, &QAction::triggered, this, &ChartControl::saveWanted);
    connect(gridAction, &QAction::toggled, this, [this](bool on) {
        m_look.grid = on;
        forgetDrawing();
        Q_EMIT lookChanged();
    });
    connect(valuesAction, &QAction::toggled, this, [this](bool on) {
        m_look.values = on;
        forgetDrawing();
        Q_EMIT lookChanged();
    });
    connect(m_figures, &QTableWidget::cellActivated, this,
            [this](int row, int column) { Q_EMIT figureChosen(column, row); });
    connect(tableAction, &QAction::toggled, this, [this](bool on) {
        const bool focused = hasFocus();
        setFocusProxy(on ? m_figures : nullptr);
        m_figures->setVisible(on);
        if (focused)
            setFocus();
    });
}

ChartControl::~ChartControl() = default;

void ChartControl::setTable(const ChartTable &table)
{
    m_table = table;
    tellFigures();
}

void ChartControl::setLook(const ChartLook &look)
{
    m_look = look;
    const QSignalBlocker grid(gridAction);
    const QSignalBlocker values(valuesAction);
    gridAction->setChecked(look.grid);
    valuesAction->setChecked(look.values);
    tellFigures();
}

void ChartControl::tellFigures()
{
    if (!m_look.title.isEmpty())
        setAccessibleName(m_look.title);
    setAccessibleDescription(figuresText(m_table, m_look));
    fillTable();
    forgetDrawing();
}

void ChartControl::fillTable()
{
    const ChartFigures figures = chartFigures(m_table, ChartKind::Bars);
    m_figures->clear();
    m_figures->setRowCount(figures.rowCount());
    m_figures->setColumnCount(figures.seriesCount());
    m_figures->setHorizontalHeaderLabels(figures.series);
    m_figures->setVerticalHeaderLabels(figures.rows);
    for (int row = 0; row < figures.rowCount(); ++row) {
        for (int column = 0; column < figures.seriesCount(); ++column) {
            auto *item = new QTableWidgetItem(chartFigureText(figures.value(column, row), m_look.locale));
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_figures->setItem(row, column, item);
        }
    }
}

const ChartDrawing &ChartControl::drawing() const
{
    if (!m_drawing) {
        QFont base = font();
        base.setPixelSize(std::max(1, QFontInfo(base).pixelSize()));
        m_drawing = std::make_unique<ChartDrawing>(m_table, m_look, size(), paletteStyle(palette(), base));
    }
    return *m_drawing;
}

void ChartControl::forgetDrawing()
{
    m_drawing.reset();
    update();
}

QString ChartControl::hoverText(QPointF place) const
{
    return drawing().textAt(place);
}

void ChartControl::copyPicture()
{
    auto *content = new QMimeData;
    content->setImageData(chartImage(m_table, m_look, (QSizeF(size()) * (CopyDpi / 96)).toSize(), CopyDpi));
    content->setText(figuresForClipboard(m_table, m_look.locale));
    QGuiApplication::clipboard()->setMimeData(content);
}

QSize ChartControl::sizeHint() const
{
    return QSize(36, 22) * fontMetrics().height();
}

QSize ChartControl::minimumSizeHint() const
{
    return QSize(14, 4) * fontMetrics().height();
}

void ChartControl::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawing().paint(painter, rect());
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void ChartControl::resizeEvent(QResizeEvent *)
{
    m_figures->setGeometry(rect());
    forgetDrawing();
}

void ChartControl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange)
        forgetDrawing();
}

void ChartControl::mouseMoveEvent(QMouseEvent *event)
{
    if (drawing().hitAt(event->position()))
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

void ChartControl::mousePressEvent(QMouseEvent *event)
{
    const auto hit = drawing().hitAt(event->position());
    if (!hit || event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    // A pie has one series, the table's last column.
    const bool onlyLast = drawing().subject().kind == ChartKind::Pie && !m_table.columnLabels.isEmpty();
    Q_EMIT figureChosen(onlyLast ? static_cast<int>(m_table.columnLabels.size()) - 1 : hit->column, hit->row);
}

bool ChartControl::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QString text = hoverText(help->pos());
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), text, this);
        return true;
    }
    return QWidget::event(event);
}

} // namespace kalvenor::chart
