// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/druckvorschau.h"

#include "language/form.h"
#include "platform/print/pdfwriter.h"
#include "settings/druckanzeige.h"
#include "settings/pageview.h"
#include "settings/printing.h"
#include "settings/savequestion.h"
#include "settings/seiteneinrichtung.h"
#include <algorithm>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QStatusBar>
#include <utility>

// The preview's commands: print, save, page setup.
namespace kalvenor::settings {

namespace {

/// The files whose names begin as the chosen one's does, at one moment: the composition of HTML lengthens the name.
class FilesBefore {
public:
    explicit FilesBefore(const QString &chosen)
    {
        const QFileInfo file(chosen);
        QDirIterator files(file.absolutePath(), QDir::Files);
        while (files.hasNext()) {
            const QString path = files.next();
            if (files.fileName().startsWith(file.completeBaseName(), Qt::CaseInsensitive))
                m_states.insert(path, stateOf(path));
        }
    }
    /// The file is there now and is not as it was.
    bool wasWritten(const QString &path) const
    {
        const QString absolute = QFileInfo(path).absoluteFilePath();
        return QFileInfo(absolute).isFile() && m_states.value(absolute) != stateOf(absolute);
    }

private:
    using State = std::pair<qint64, QDateTime>;
    static State stateOf(const QString &path)
    {
        const QFileInfo file(path);
        return {file.size(), file.lastModified()};
    }

    QMap<QString, State> m_states;
};

/// Native path of a PDF file named by the report's title, where reports are saved.
QString proposedFile(const host::Host &host, QString title)
{
    static const QRegularExpression notInNames(QStringLiteral("[\\\\/:*?\"<>|[:cntrl:]]+"));
    const QString folder = host.native(printsFolder(host));
    return QDir(QDir(folder).exists() ? folder : host.native(host.Hostverzeichnis))
        .filePath(title.replace(notInNames, QStringLiteral("-")) + QStringLiteral(".pdf"));
}

} // namespace

std::shared_ptr<const PageLayout> Druckvorschau::pagesAtHand() const
{
    if (!m_control.hasDocument())
        throw Error(ErrorKind::Refused, {}, text(20940, QStringLiteral("Es ist noch kein Bericht zusammengestellt.")));
    return m_control.layout();
}

void Druckvorschau::print()
{
    const std::shared_ptr<const PageLayout> layout = pagesAtHand();
    const auto pageCount = static_cast<int>(layout->pages().size());
    QPrinter printer(QPrinter::HighResolution);
    preparePrinter(printer, *layout, m_control.document().title);
    if (QPrinterInfo::availablePrinterNames().isEmpty()) // then the dialog begins with a file
        printer.setOutputFileName(proposedFile(m_host, m_control.document().title));
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(text(190, {}));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCurrentPage | QAbstractPrintDialog::PrintCollateCopies |
                      QAbstractPrintDialog::PrintShowPageSize);
    dialog.setMinMax(1, pageCount);
    if (!m_host.desktop().runDialog(dialog))
        return;

    const bool toFile = !printer.outputFileName().isEmpty();
    if (!toFile && printer.printerName().isEmpty())
        throw Error(ErrorKind::Refused, {}, text(20937, QStringLiteral("Es ist kein Drucker eingerichtet.")));
    const std::vector<int> pages = pagesToPrint(pageCount, printChoice(printer, m_view->currentPage()));
    if (pages.empty())
        throw Error(ErrorKind::Refused, {}, text(20941, QStringLiteral("In diesem Bereich liegen keine Seiten.")));
    const QPrinterInfo device(printer);
    m_printing->begin(toFile ? QStringLiteral("PDF") : printer.printerName(),
                      toFile                        ? QDir::toNativeSeparators(printer.outputFileName())
                      : device.location().isEmpty() ? device.description()
                                                    : device.location());
    m_work.run(text(20945, QStringLiteral("Die Seiten werden gedruckt ...")),
               [&](const Progress &progress) { printPages(*layout, printer, pages, progress); });
    if (toFile)
        saySaved(printer.outputFileName());
    else
        say(text(20935, QStringLiteral("Gedruckt: %1 Seiten"), QString::number(pages.size())));
}

void Druckvorschau::save()
{
    const auto normalPointer = qScopeGuard([this] { unsetCursor(); });
    QString file;
    try {
        file = askForSaveFile(*this, m_host, text(194, {}));
    } catch (const Error &) {
        return; // a dialog that fails counts as cancelled
    }
    if (file.isEmpty())
        return;
    // Compositions to come make pages again.
    const auto pagesAgain = qScopeGuard([this] {
        m_control.exportFormat = ExportFormat::Pages;
        m_control.exportFile.clear();
    });
    m_control.exportFile = m_host.windows(file);
    switch (savedAs(file)) {
    case SavedAs::Rtf:
        saveByComposing(ExportFormat::Rtf, file);
        break;
    case SavedAs::Pdf:
        savePdf(file);
        break;
    case SavedAs::Html:
        saveByComposing(ExportFormat::Html, file);
        break;
    case SavedAs::Nothing:
        say(text(20943, QStringLiteral("Nichts gespeichert, der Name muss auf .rtf, .pdf oder .html enden: %1"),
                 QDir::toNativeSeparators(file)));
        break;
    }
}

void Druckvorschau::savePdf(const QString &file)
{
    const std::shared_ptr<const PageLayout> layout = pagesAtHand();
    m_work.run(text(20946, QStringLiteral("Die PDF-Datei wird geschrieben ...")),
               [&](const Progress &progress) { writePdf(*layout, m_control.document().title, file, progress); });
    saySaved(file);
}

void Druckvorschau::saveByComposing(ExportFormat format, const QString &file)
{
    const FilesBefore before(file);
    m_control.exportFormat = format;
    callMain("auswahldrucken");
    const QString written = m_host.native(m_control.exportFile);
    if (before.wasWritten(written))
        saySaved(written);
    else
        say(text(20947, QStringLiteral("Nicht gespeichert: %1"), QDir::toNativeSeparators(written)));
}

void Druckvorschau::setUpPage()
{
    Seiteneinrichtung dialog(m_host, m_texts, m_control.page, this);
    if (!m_host.desktop().runDialog(dialog))
        return; // nothing changed, nothing to be composed again
    m_control.page = dialog.page();
    callMain("initspeichern");
    callMain("initladen");
    m_view->refit();
    callMain("auswahldrucken");
}

} // namespace kalvenor::settings
