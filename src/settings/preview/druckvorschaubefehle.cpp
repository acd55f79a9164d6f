// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/druckvorschau.h"

#include "language/forms/form.h"
#include "platform/print/pdfwriter.h"
#include "settings/dialog/seiteneinrichtung.h"
#include "settings/preview/druckanzeige.h"
#include "settings/preview/pageview.h"
#include "settings/preview/printing.h"
#include "settings/preview/savequestion.h"
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

using namespace Qt::StringLiterals;

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
    static const QRegularExpression notInNames(u"[\\\\/:*?\"<>|[:cntrl:]]+"_s);
    const QString folder = host.native(printsFolder(host));
    return QDir(QDir(folder).exists() ? folder : host.native(host.Hostverzeichnis))
        .filePath(title.replace(notInNames, u"-"_s) + u".pdf"_s);
}

} // namespace

std::shared_ptr<const print::PageLayout> Druckvorschau::pagesAtHand() const
{
    if (!m_control.hasDocument())
        throw basic::Error(basic::ErrorKind::Refused, {}, text(20940, u"Es ist noch kein Bericht zusammengestellt."_s));
    return m_control.layout();
}

void Druckvorschau::print()
{
    const std::shared_ptr<const print::PageLayout> layout = pagesAtHand();
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
        throw basic::Error(basic::ErrorKind::Refused, {}, text(20937, u"Es ist kein Drucker eingerichtet."_s));
    const std::vector<int> pages = pagesToPrint(pageCount, printChoice(printer, m_view->currentPage()));
    if (pages.empty())
        throw basic::Error(basic::ErrorKind::Refused, {}, text(20941, u"In diesem Bereich liegen keine Seiten."_s));
    const QPrinterInfo device(printer);
    m_printing->begin(toFile ? u"PDF"_s : printer.printerName(),
                      toFile                        ? QDir::toNativeSeparators(printer.outputFileName())
                      : device.location().isEmpty() ? device.description()
                                                    : device.location());
    m_work.run(text(20945, u"Die Seiten werden gedruckt ..."_s),
               [&](const basic::Progress &progress) { printPages(*layout, printer, pages, progress); });
    if (toFile)
        saySaved(printer.outputFileName());
    else
        say(text(20935, u"Gedruckt: %1 Seiten"_s, QString::number(pages.size())));
}

void Druckvorschau::save()
{
    const auto normalPointer = qScopeGuard([this] { unsetCursor(); });
    QString file;
    try {
        file = askForSaveFile(*this, m_host, text(194, {}));
    } catch (const basic::Error &) {
        return; // a dialog that fails counts as cancelled
    }
    if (file.isEmpty())
        return;
    // Compositions to come make pages again.
    const auto pagesAgain = qScopeGuard([this] {
        m_control.exportFormat = print::ExportFormat::Pages;
        m_control.exportFile.clear();
    });
    m_control.exportFile = m_host.windows(file);
    switch (savedAs(file)) {
    case SavedAs::Rtf:
        saveByComposing(print::ExportFormat::Rtf, file);
        break;
    case SavedAs::Pdf:
        savePdf(file);
        break;
    case SavedAs::Html:
        saveByComposing(print::ExportFormat::Html, file);
        break;
    case SavedAs::Nothing:
        say(text(20943, u"Nichts gespeichert, der Name muss auf .rtf, .pdf oder .html enden: %1"_s,
                 QDir::toNativeSeparators(file)));
        break;
    }
}

void Druckvorschau::savePdf(const QString &file)
{
    const std::shared_ptr<const print::PageLayout> layout = pagesAtHand();
    m_work.run(text(20946, u"Die PDF-Datei wird geschrieben ..."_s), [&](const basic::Progress &progress) {
        print::writePdf(*layout, m_control.document().title, file, progress);
    });
    saySaved(file);
}

void Druckvorschau::saveByComposing(print::ExportFormat format, const QString &file)
{
    const FilesBefore before(file);
    m_control.exportFormat = format;
    callMain("auswahldrucken");
    const QString written = m_host.native(m_control.exportFile);
    if (before.wasWritten(written))
        saySaved(written);
    else
        say(text(20947, u"Nicht gespeichert: %1"_s, QDir::toNativeSeparators(written)));
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
