// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include "platform/print/printdocument.h"
#include <array>
#include <QWidget>

class QRadioButton;

namespace kalvenor::settings {

class LengthBox;

/// A sheet of paper with its margins, drawn small.
class PaperSketch : public QWidget {
    Q_OBJECT
public:
    explicit PaperSketch(QWidget *parent = nullptr);
    void setPage(const print::PageSetup &page);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    print::PageSetup m_page;
};

/// Margins and orientation of the page; paper and the rest of the setup pass through.
class PagePanel : public QWidget {
    Q_OBJECT
public:
    explicit PagePanel(language::Sprachmodul &texts, QWidget *parent = nullptr);

    void setPage(const print::PageSetup &page);
    print::PageSetup page() const;

private:
    void showPage();

    print::PageSetup m_page;
    std::array<LengthBox *, 4> m_margins; ///< left, top, right, bottom
    std::array<QRadioButton *, 2> m_orientations;
    PaperSketch *m_sketch;
};

} // namespace kalvenor::settings
