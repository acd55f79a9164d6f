// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/text.h"
#include <array>
#include <QKeySequence>
#include <QToolBar>

class QComboBox;
class QFontComboBox;
class QMenu;
class QTextCharFormat;
class QToolButton;

namespace kalvenor::desktop {
enum class LineIcon;
}

namespace kalvenor::statistics {

class TextField;

/// The tools of a text field and its context menu. They show the formats at the cursor. Texts are design-time texts.
class TextTools : public QToolBar {
    Q_OBJECT
public:
    TextTools(TextField &field, QWidget *parent);

Q_SIGNALS:
    void openWanted();
    void saveWanted();

private:
    QAction *make(const char *name, language::Text caption, const QIcon &icon, const QKeySequence &keys = {});
    /// One with a button, which has a tooltip.
    QAction *makeTool(const char *name, language::Text caption, const QIcon &icon, const QKeySequence &keys = {});
    QAction *makeToggle(const char *name, language::Text caption, desktop::LineIcon icon, const QKeySequence &keys,
                        void (*apply)(QTextCharFormat &format, bool on));
    void makeFormats();
    void makeEditing();
    void makeAlignments();
    void makeFonts();
    void makeColors();
    void makeMenu();
    void arrange();

    void applySize(const QString &text);
    void applyColor(const QColor &color);
    void merge(const QTextCharFormat &format);
    void showFormats();

    TextField &m_field;
    QMenu *m_menu;
    QAction *m_bold, *m_italic, *m_underline, *m_strikeOut, *m_bullets, *m_plain;
    QAction *m_undo, *m_redo, *m_cut, *m_copy, *m_paste, *m_pastePlain, *m_open, *m_save;
    std::array<QAction *, 4> m_alignments;
    QFontComboBox *m_family;
    QComboBox *m_size;
    QToolButton *m_color;
    QMenu *m_colors;
};

} // namespace kalvenor::statistics
