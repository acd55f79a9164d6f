// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/previewcommands.h"

#include "host/hauptform.h"
#include "language/texts/sprache.h"
#include "platform/print/pdfwriter.h"
#include "platform/storage/gate.h"
#include "settings/dialog/seiteneinrichtung.h"
#include "settings/preview/druckanzeige.h"
#include "settings/preview/pageview.h"
#include "settings/preview/printing.h"
#include "settings/preview/savequestion.h"
#include <QDir>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

using language::Text;

namespace {

/// Native path of a PDF file named by the report's title, where reports are saved.
QString proposedFile(const host::Host &host, QString title)
{
    static const QRegularExpression notInNames(u"[\\\\/:*?\"<>|[:cntrl:]]+"_s);
    const QString folder = host.native(printsFolder(host));
    return QDir(QDir(folder).exists() ? folder : host.native(host.Hostverzeichnis))
        .filePath(title.replace(notInNames, u"-"_s) + u".pdf"_s);
}

} // namespace

PreviewCommands::PreviewCommands(const host::Host &host, language::Sprachmodul &texts, print::PrintControl &control,
                                 desktop::Work &work, PageView &view, QWidget &window)
    : QObject(&window), m_host(host), m_texts(texts), m_control(control), m_work(work), m_view(view), m_window(window),
      m_printing(new Druckanzeige(host, work, &window))
{
}

void PreviewCommands::setTexts(const ControlTexts &texts)
{
    m_printing->setTexts(texts);
}

void PreviewCommands::carryOut(const QString &key)
{
    if (key == u"INI")
        setUpPage();
    else if (key == u"INITVorgaben")
        mainForm().init();
    else if (key == u"drucker")
        print();
    else if (key == u"save")
        save();
}

host::Hauptform &PreviewCommands::mainForm() const
{
    Q_ASSERT(m_host.Hauptform != nullptr); // which owns the preview
    return *m_host.Hauptform;
}

QString PreviewCommands::text(Text id, const QString &what) const
{
    return m_texts.text(id).replace(u"%1"_s, what.isNull() ? u"%1"_s : what);
}

std::shared_ptr<const print::PageLayout> PreviewCommands::pagesAtHand() const
{
    if (!m_control.hasDocument())
        throw basic::Error(basic::Fault::NoReport);
    return m_control.layout();
}

void PreviewCommands::print()
{
    const std::shared_ptr<const print::PageLayout> layout = pagesAtHand();
    const auto pageCount = static_cast<int>(layout->pages().size());
    QPrinter printer(QPrinter::HighResolution);
    preparePrinter(printer, *layout, m_control.document().title);
    if (QPrinterInfo::availablePrinterNames().isEmpty()) // then the dialog begins with a file
        printer.setOutputFileName(proposedFile(m_host, m_control.document().title));
    QPrintDialog dialog(&printer, &m_window);
    dialog.setWindowTitle(text(Text::PreviewPrint));
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCurrentPage | QAbstractPrintDialog::PrintCollateCopies |
                      QAbstractPrintDialog::PrintShowPageSize);
    dialog.setMinMax(1, pageCount);
    if (!m_host.desktop().runDialog(dialog))
        return;

    const bool toFile = !printer.outputFileName().isEmpty();
    if (!toFile && printer.printerName().isEmpty())
        throw basic::Error(basic::Fault::NoPrinter);
    if (toFile)
        storage::checkTarget(basic::NativePath(printer.outputFileName()), storage::Origin::Named);
    const std::vector<int> pages = pagesToPrint(pageCount, printChoice(printer, m_view.currentPage()));
    if (pages.empty())
        throw basic::Error(basic::Fault::NoPagesInRange);
    const QPrinterInfo device(printer);
    m_printing->begin(toFile ? u"PDF"_s : printer.printerName(),
                      toFile                        ? QDir::toNativeSeparators(printer.outputFileName())
                      : device.location().isEmpty() ? device.description()
                                                    : device.location());
    m_work.run(text(Text::PrintingPages),
               [&](const basic::Progress &progress) { printPages(*layout, printer, pages, progress); });
    if (toFile)
        Q_EMIT saved(printer.outputFileName());
    else
        Q_EMIT said(text(Text::PrintedPages, QString::number(pages.size())));
}

void PreviewCommands::save()
{
    const auto normalPointer = qScopeGuard([this] { m_window.unsetCursor(); });
    QString file;
    try {
        file = askForSaveFile(m_window, m_host, text(Text::SaveStatisticAs));
    } catch (const basic::Error &) {
        return; // a dialog that fails counts as cancelled
    }
    if (file.isEmpty())
        return;
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
        Q_EMIT said(text(Text::WrongFileEnding, QDir::toNativeSeparators(file)));
        break;
    }
}

void PreviewCommands::savePdf(const QString &file)
{
    const std::shared_ptr<const print::PageLayout> layout = pagesAtHand();
    m_work.run(text(Text::WritingPdf), [&](const basic::Progress &progress) {
        print::writePdf(*layout, m_control.document().title, file, progress);
    });
    Q_EMIT saved(file);
}

void PreviewCommands::saveByComposing(print::ExportFormat format, const QString &file)
{
    const auto written = mainForm().auswahldrucken({format, m_host.windows(file)});
    if (written)
        Q_EMIT saved(m_host.native(*written));
    else
        Q_EMIT said(text(Text::NotSaved, QDir::toNativeSeparators(file)));
}

void PreviewCommands::setUpPage()
{
    Seiteneinrichtung dialog(m_host, m_texts, m_control.page, &m_window);
    if (!m_host.desktop().runDialog(dialog))
        return; // nothing changed, nothing to be composed again
    m_control.page = dialog.page();
    mainForm().initspeichern();
    mainForm().initladen();
    m_view.refit();
    mainForm().auswahldrucken({});
}

} // namespace kalvenor::settings
