// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/chart/chart.h"

#include <memory>
#include <optional>
#include <QAction>
#include <QWidget>

class QTableWidget;

namespace kalvenor::chart {

class ChartDrawing;

/// A chart in a window, in the colours of the palette. The figure under the mouse shows as a tooltip and can be
/// clicked, in the table also chosen by Return. The actions make up the context menu; their captions are the owner's to
/// give. The accessible description holds all figures.
class ChartControl : public QWidget {
    Q_OBJECT
public:
    explicit ChartControl(QWidget *parent = nullptr);
    ~ChartControl() override;

    void setTable(const ChartTable &table);
    void setLook(const ChartLook &look);
    const ChartTable &table() const { return m_table; }
    /// As set, with the person's choices of grid and figures.
    const ChartLook &look() const { return m_look; }

    /// Text of the tooltip at that place of the widget; empty where there is no figure.
    QString hoverText(QPointF place) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QAction *const copyAction;   ///< light picture and figures (tab-separated) to the clipboard
    QAction *const saveAction;   ///< asks the owner, by saveWanted()
    QAction *const gridAction;   ///< checkable; sets ChartLook::grid
    QAction *const valuesAction; ///< checkable; sets ChartLook::values
    QAction *const tableAction;  ///< checkable; shows the figures as a table in place of the chart

Q_SIGNALS:
    /// The person wants the picture as a file: ask for its name and call writeChart(table(), look(), …).
    void saveWanted();
    /// The person switched grid or figures.
    void lookChanged();
    /// A figure of the table was chosen.
    void figureChosen(int column, int row);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    const ChartDrawing &drawing() const;
    void forgetDrawing();
    void copyPicture();
    void fillTable();
    void tellFigures();

    ChartTable m_table;
    ChartLook m_look;
    mutable std::unique_ptr<ChartDrawing> m_drawing; ///< made at need
    QTableWidget *m_figures;
};

} // namespace kalvenor::chart
