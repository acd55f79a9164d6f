// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextEdit>

class QMenu;

namespace kalvenor::statistics {

/// The page one writes on: dark on white in any palette, as it will be printed. What is pasted or dropped keeps only
/// the formats that the editor offers.
class TextField : public QTextEdit {
    Q_OBJECT
public:
    explicit TextField(QWidget *parent = nullptr);

    /// Shown instead of the usual menu. Its shortcuts work while the field has the focus and go before those of the
    /// window.
    void setContextMenu(QMenu *menu) { m_menu = menu; }
    void pastePlain();
    /// Bullets at the selected paragraphs, or none.
    void setBullets(bool on);
    /// Takes the formats from the selection, without one from the paragraph. Bullets stay.
    void removeFormats();

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    QMimeData *createMimeDataFromSelection() const override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    QAction *actionFor(const QKeyEvent &event) const;

    QMenu *m_menu = nullptr;
};

} // namespace kalvenor::statistics
