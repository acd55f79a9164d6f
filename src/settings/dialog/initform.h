// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include "settings/store/vorgabendatei.h"
#include <QDialog>

class QTabWidget;

namespace kalvenor::settings {

class ContentsPanel;
class FontPanel;
class PagePanel;

/// The print settings dialog. It shows what the settings file holds and changes file and memory when it is confirmed
/// (button Ende_0) and everything could be written; else the user is told, it stays open and memory is as before.
class Initform : public QDialog {
    Q_OBJECT
public:
    /// Loads the settings (initladen). `vorgaben` and `page` must outlive the dialog.
    Initform(const host::Host &host, language::Sprachmodul &texts, Druckvorgaben &vorgaben, print::PageSetup &page,
             QWidget *parent = nullptr);

private:
    void makeButtons();
    void fill(const Druckvorgaben &vorgaben, const print::PageSetup &page, const ReportMeasures &measures);
    void showDefaults();
    void confirm();
    void tell(language::Text id, const QString &what = {});

    const host::Host &m_host;
    language::Sprachmodul &m_texts;
    Druckvorgaben &m_vorgaben;
    print::PageSetup &m_page;
    QTabWidget *m_tabs;
    FontPanel *m_fonts;
    PagePanel *m_pagePanel;
    ContentsPanel *m_contents;
};

} // namespace kalvenor::settings
