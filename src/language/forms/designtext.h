// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/text.h"
#include <QString>

class QHeaderView;
class QObject;

// How the design-time texts of widgetform.h are kept with the items.
namespace kalvenor::language {

// Dynamic properties, and the keys of a tab's data; each holds an identifier in digits.
inline constexpr const char *Tag = "tag";
inline constexpr const char *TooltipTag = "tooltipTag";
inline constexpr const char *ToolTag = "toolTag";   // of an action's tool bar button
inline constexpr const char *Headings = "headings"; // of a header view: column → identifier

/// "" for Text::None.
QString tagOf(Text id);
/// What a form shows before it is translated: the German text.
QString designTextOf(Text id);

QString textProperty(const QObject *object, const char *property);

/// What carries the texts that an item shows: a menu's action, a tool button's default action, else the item.
QObject *carrierOf(QObject *item);
/// The property that holds a carrier's caption.
const char *captionProperty(const QObject *carrier);
/// The caption; a place that knows no access keys gets it without.
void showCaption(QObject *carrier, const QString &text);

void showHeading(QHeaderView *header, int column, const QString &shown);

} // namespace kalvenor::language
