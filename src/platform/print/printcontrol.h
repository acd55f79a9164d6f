// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/path.h"
#include "platform/basic/progress.h"
#include "platform/print/pagelayout.h"
#include "platform/print/printdocument.h"

#include <memory>
#include <QObject>
#include <QString>

namespace kalvenor::print {

/// Where a run of the report goes, by the numbers of the control.
enum class ExportFormat { Pages = 0, Html = 1, Rtf = 4, RtfPlain = 5 };
struct ExportTarget {
    ExportFormat format = ExportFormat::Pages;
    basic::WindowsPath file = {}; ///< empty for pages
};

/// The print control: one for the life of the program. Report composition fills it, the preview shows its pages, the
/// page setup and the settings file change its paper and margins.
class PrintControl : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    PageSetup page; ///< taken by the next document

    /// Takes the composed document, which has its own page setup, and lays it out. The old one stays where this
    /// throws PageLayout's Error.
    void setDocument(PrintDocument document, const basic::Progress &progress = {});
    bool hasDocument() const { return m_layout != nullptr; }
    const PrintDocument &document() const { return m_document; }
    /// Only where there is a document. Holders keep the old pages alive while a new document comes in.
    std::shared_ptr<const PageLayout> layout() const { return m_layout; }

Q_SIGNALS:
    /// There is a new document.
    void changed();

private:
    PrintDocument m_document;
    std::shared_ptr<const PageLayout> m_layout;
};

} // namespace kalvenor::print
