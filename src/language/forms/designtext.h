// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QHeaderView;
class QObject;

// How the design-time texts of widgetform.h are kept with the items.
namespace kalvenor::language {

// Dynamic properties, and the keys of a tab's data.
inline constexpr const char *Tag = "tag";
inline constexpr const char *DesignText = "designText";
inline constexpr const char *TooltipTag = "tooltipTag";
inline constexpr const char *DesignTooltip = "designTooltip";
inline constexpr const char *ToolTag = "toolTag"; // of an action's tool bar button
inline constexpr const char *DesignToolText = "designToolText";
inline constexpr const char *Headings = "headings"; // of a header view: column → design-time caption

/// A design-time text, taken apart.
struct Designed {
    QString tag; ///< digits, empty where there are none
    QString text;
};
Designed split(const QString &designed);

QString textProperty(const QObject *object, const char *property);

/// What carries the texts that an item shows: a menu's action, a tool button's default action, else the item.
QObject *carrierOf(QObject *item);
/// The property that holds a carrier's caption.
const char *captionProperty(const QObject *carrier);

void showHeading(QHeaderView *header, int column, const QString &shown);

} // namespace kalvenor::language
