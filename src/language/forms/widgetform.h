// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/forms/form.h"
#include <QString>

class QAction;
class QHeaderView;
class QObject;
class QTabBar;
class QTabWidget;
class QWidget;

// Windows of Qt as forms. A design-time text is an identifier; its German text is shown at once, as the text that the
// form was designed with, and the identifier is kept in a dynamic property ("tag", "tooltipTag") for the translation.
namespace kalvenor::language {

/// Gives an item its design-time caption and tooltip; Text::None leaves what is there. The caption is the text of a
/// button, label or action, the title of a group box, menu, dock, tool bar or window, the placeholder of an entry
/// field, and the accessible name of anything else. A button without a text takes its tooltip as its accessible name.
void setDesignText(QObject *item, Text caption, Text tooltip = Text::None);
/// A caption of its own for the action's tool bar button (its icon text), e.g. "Save" where the menu has
/// "Save template". Without it the button follows the action's text.
void setDesignToolCaption(QAction *action, Text caption);
/// One tab. Its tab data (QTabBar::tabData) is used for this and not to be used otherwise.
void setDesignTab(QTabBar *tabs, int index, Text caption, Text tooltip = Text::None);
void setDesignTab(QTabWidget *tabs, int index, Text caption, Text tooltip = Text::None);
/// One column heading of a view. The header's model must be set before and must take setHeaderData for the display
/// role.
void setDesignHeading(QHeaderView *header, int column, Text caption);

/// Translates a window that was built with design-time texts; call it once when the window is complete, with
/// setDesignText(&window, Text::…) for its title and the object name as the form's name. Items without
/// an identifier keep their text; their tooltip is removed too where short help is off (host.Kurzhilfe is not 1), so a
/// tooltip set later is the caller's to suppress. Dialogs and windows that are children are left to their own call.
/// The window's cursor stays an hourglass: call window.unsetCursor() when it is ready.
void formuebersetzen(QWidget &window, Sprachmodul &texts, const host::Host &host);

} // namespace kalvenor::language
