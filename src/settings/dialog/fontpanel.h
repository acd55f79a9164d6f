// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include "settings/store/druckvorgaben.h"
#include <QCheckBox>
#include <QWidget>

class QFontComboBox;
class QLabel;
class QListWidget;

namespace kalvenor::settings {

class ColorButton;
class FontSample;
class NumberBox;

/// The fonts of the report's elements. A text that the user leaves alone stays exactly as it is.
class FontPanel : public QWidget {
    Q_OBJECT
public:
    FontPanel(desktop::Desktop &desktop, language::Sprachmodul &texts, QWidget *parent);

    void setVorgaben(const Druckvorgaben &vorgaben);
    /// Puts the fonts in.
    void takeInto(Druckvorgaben &vorgaben) const;

private:
    struct Switch {
        QCheckBox *box;
        QString FontTexts::*text;
    };

    void build(desktop::Desktop &desktop);
    void layOut();
    Element element() const;
    FontTexts &font() { return m_vorgaben.font(element()); }
    void fill();
    void edit(QString FontTexts::*text, const QString &value);
    void showSample();

    language::Sprachmodul &m_texts;
    Druckvorgaben m_vorgaben = defaultVorgaben();
    QListWidget *m_elements;
    QFontComboBox *m_family;
    NumberBox *m_size;
    std::array<Switch, 4> m_switches;
    ColorButton *m_color, *m_background;
    FontSample *m_sample;
    QLabel *m_missing, *m_underline;
    bool m_filling = false; ///< by the program, not by the user
};

} // namespace kalvenor::settings
