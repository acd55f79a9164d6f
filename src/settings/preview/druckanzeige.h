// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "platform/desktop/work.h"
#include "settings/dialog/controltexts.h"
#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace kalvenor::settings {

/// The print control's printing dialog: shown while printing takes longer than a moment, with a button to cancel it.
class Druckanzeige : public QDialog {
    Q_OBJECT
public:
    Druckanzeige(const host::Host &host, desktop::Work &work, QWidget *parent);

    void setTexts(const ControlTexts &texts);
    /// From here until the work ends its progress is shown.
    void begin(const QString &printer, const QString &place);

    void reject() override;

private:
    void advance(qint64 done, qint64 total);

    const host::Host &m_host;
    desktop::Work &m_work;
    ControlTexts m_texts;
    QLabel *m_device, *m_page;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    bool m_active = false;
};

} // namespace kalvenor::settings
