// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/sprache.h"
#include "platform/desktop/work.h"
#include "platform/print/printcontrol.h"
#include "settings/dialog/controltexts.h"
#include <memory>
#include <QMainWindow>

class QPushButton;

namespace kalvenor::settings {

class PageView;
class SearchBar;
class PreviewCommands;
struct PreviewActions;

/// The print preview: the pages of the print control, and the commands to print and save them and to change how they
/// look, for which it calls the main window (host.Hauptform). Closing it while work is running cancels the work first.
class Druckvorschau : public QMainWindow {
    Q_OBJECT
public:
    /// Shows the control's pages, now and whenever they change. `work` is the program's.
    Druckvorschau(const host::Host &host, language::Sprachmodul &texts, print::PrintControl &control,
                  desktop::Work &work, QWidget *parent = nullptr);
    ~Druckvorschau() override;

    PageView &pageView() { return *m_view; }
    const ControlTexts &controlTexts() const { return m_controlTexts; }

public Q_SLOTS:
    /// Carries out a command: "drucker" prints, "save" saves, "INITVorgaben" opens the print settings, "INI" sets up
    /// the page; other keys do nothing. Does nothing while a command or other work is going on. Errors are shown.
    void toolbarbuttonclick(const QString &key);

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectActions();
    void makeStatusBar();
    /// Puts the preview in its place in the stack, and the main window, which would else cover it.
    void placeAll(int onTop);
    void showPages();
    void showPlace();
    void say(const QString &what);
    void saySaved(const QString &file);
    void openSaved();
    QString text(language::Text id, const QString &what = {}) const;

    const host::Host &m_host;
    language::Sprachmodul &m_texts;
    print::PrintControl &m_control;
    desktop::Work &m_work;
    ControlTexts m_controlTexts;
    PageView *m_view;
    SearchBar *m_searchBar;
    std::unique_ptr<PreviewActions> m_actions;
    PreviewCommands *m_commands;
    QPushButton *m_open;
    QString m_saved;  ///< native path of the file that the button opens
    QString m_pageOf; ///< "Seite %1 von %2"
    QString m_title;
    bool m_busy = false;    ///< a command is being carried out
    bool m_closing = false; ///< as soon as it has ended
};

} // namespace kalvenor::settings
