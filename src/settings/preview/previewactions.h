// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/dialog/controltexts.h"
#include <array>
#include <QList>

class QAction;
class QComboBox;
class QMainWindow;
class QMenu;
class QSpinBox;
class QToolBar;

namespace kalvenor::settings {

class PageView;

/// The preview's commands, in its menus and its tool bars, and the controls of page and zoom. Texts are design-time
/// texts but for the zoom choices.
struct PreviewActions {
    explicit PreviewActions(QMainWindow &window);

    /// The tool bar's buttons; the object name is the command's key.
    QList<QAction *> commands;
    QAction *MDD, *MDS, *MDINI, *MDE, *MHH;
    QAction *first, *previous, *next, *last;
    QAction *larger, *smaller, *actualSize;
    QAction *find, *findNext, *findPrevious;
    std::array<QAction *, 4> fits; ///< in the order of the zoom choices
    QSpinBox *page;
    QComboBox *zoom;

    void showZoomChoices(const ControlTexts &texts);
    /// Shows page number and zoom of the view. `pageOf` is "Seite %1 von %2".
    void follow(const PageView &view, const QString &pageOf);
    /// Sets the view's zoom to the choice in the list.
    void choose(PageView &view, int choice) const;
    /// Lets the commands' buttons go without their captions where the tool bars would be wider than the window.
    void fitInto(int width);

private:
    void makeMenus(QMainWindow &window);
    void makeToolBars(QMainWindow &window);

    QToolBar *m_tools = nullptr;
    QToolBar *m_pages = nullptr;
};

} // namespace kalvenor::settings
