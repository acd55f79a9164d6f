// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/sprache.h"
#include "platform/print/printdocument.h"
#include <QDialog>

class QComboBox;

namespace kalvenor::settings {

class PagePanel;

/// The print control's setup dialog: paper, orientation and margins. What the user leaves alone stays exactly as it is.
class Seiteneinrichtung : public QDialog {
    Q_OBJECT
public:
    Seiteneinrichtung(const host::Host &host, language::Sprachmodul &texts, const print::PageSetup &page,
                      QWidget *parent = nullptr);

    print::PageSetup page() const;
    /// Margins that leave no room for the text are refused with a message.
    void accept() override;

private:
    void fillPapers(const print::PageSetup &page);

    const host::Host &m_host;
    language::Sprachmodul &m_texts;
    QComboBox *m_paper;
    PagePanel *m_panel;
};

} // namespace kalvenor::settings
