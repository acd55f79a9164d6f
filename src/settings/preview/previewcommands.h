// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/sprache.h"
#include "platform/desktop/work.h"
#include "platform/print/printcontrol.h"
#include "settings/dialog/controltexts.h"
#include <memory>
#include <QObject>

class QWidget;

namespace kalvenor::settings {

class Druckanzeige;
class PageView;

/// What the preview's commands do: print, save, set up the page, change the print settings.
class PreviewCommands : public QObject {
    Q_OBJECT
public:
    /// `window` shows the view and owns the commands.
    PreviewCommands(const host::Host &host, language::Sprachmodul &texts, print::PrintControl &control,
                    desktop::Work &work, PageView &view, QWidget &window);

    /// Texts of the printing dialog.
    void setTexts(const ControlTexts &texts);
    /// "drucker", "save", "INITVorgaben" or "INI"; other keys do nothing. Throws Error: Cancelled, Refused where there
    /// is nothing to print, WriteFailed.
    void carryOut(const QString &key);

Q_SIGNALS:
    /// What was done, for the status bar.
    void said(const QString &text);
    void saved(const QString &nativeFile);

private:
    void print();
    void save();
    void savePdf(const QString &file);
    void saveByComposing(print::ExportFormat format, const QString &file);
    void setUpPage();
    host::Hauptform &mainForm() const;
    /// Throws Error(Refused) where nothing has been composed yet.
    std::shared_ptr<const print::PageLayout> pagesAtHand() const;
    QString text(language::Text id, const QString &what = {}) const;

    const host::Host &m_host;
    language::Sprachmodul &m_texts;
    print::PrintControl &m_control;
    desktop::Work &m_work;
    PageView &m_view;
    QWidget &m_window;
    Druckanzeige *m_printing;
};

} // namespace kalvenor::settings
