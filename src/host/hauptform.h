// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/print/printcontrol.h"
#include <optional>
#include <QString>

class QWidget;

namespace kalvenor::host {

/// The main window, as windows that it opens call it. What goes wrong in a call has been told to the user when it
/// returns.
class Hauptform {
public:
    /// Composes the report of what the main window shows: into the print control's pages, or into a file. Only what is
    /// out of date is computed again. The file's final name, empty for pages; nothing where the
    /// report failed or was cancelled.
    virtual std::optional<basic::WindowsPath> auswahldrucken(const print::ExportTarget &target) = 0;
    /// Reads the print settings and the page.
    virtual void initladen() = 0;
    /// Writes them. False where that failed.
    virtual bool initspeichern() = 0;
    /// Lets the user change the print settings. False where they were left as they are.
    virtual bool init() = 0;
    /// Shows the manual at the chapter of this name, else at its beginning.
    virtual void panelaufruf(const QString &thema) = 0;
    /// The window itself.
    virtual QWidget &fenster() = 0;

protected:
    ~Hauptform() = default;
};

} // namespace kalvenor::host
