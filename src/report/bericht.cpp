// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/bericht.h"

#include "language/form.h"
#include "platform/basic/text.h"
#include "platform/print/htmlwriter.h"
#include "platform/print/richtextblocks.h"
#include "platform/print/rtfwriter.h"
#include "platform/richtext/rtfreader.h"
#include "report/agelisttable.h"
#include "report/htmlexport.h"
#include "report/rtfanpassen.h"
#include "settings/vorgabendatei.h"
#include <cmath>
#include <QDir>
#include <QScopeGuard>
#include <QTextDocument>

namespace kalvenor::report {

namespace {

constexpr qint16 TextCriteria = 911;
constexpr qint16 TextHint = 116;
constexpr qint16 TextFooter = 120;
constexpr qint16 TextReportFile = 1205;
constexpr qint16 TextAgeList = 1217;

constexpr double PictureDpi = 220;
constexpr double TwipsPerInch = 1440;
constexpr Twips Gap = 200; ///< between two sections
/// Sizes of the introductory text are printed as the editor shows them.
constexpr double IntroductionScale = 1;

constexpr int Section = 1; ///< outline level

int pixels(double twips)
{
    return static_cast<int>(std::lround(twips / TwipsPerInch * PictureDpi));
}

Twips printableWidth(const PageSetup &page)
{
    return (page.landscape ? page.paperHeight : page.paperWidth) - page.left - page.right;
}

} // namespace

Bericht::Bericht(const ReportServices &services) : m_services(services), m_pictures(services.host, services.language)
{
}

void Bericht::initladen()
{
    settings::initladen(m_services.host, vorgaben, m_services.print.page);
}

bool Bericht::initspeichern() const
{
    return settings::initspeichern(m_services.host, vorgaben, m_services.print.page);
}

void Bericht::auswahldrucken(const ReportContent &content, const Progress &progress)
{
    const host::Host &host = m_services.host;
    host.desktop().setPointer(Pointer::Hourglass);
    const auto restore = qScopeGuard([&host] { host.desktop().setPointer(Pointer::Default); });
    initladen();
    PrintControl &print = m_services.print;
    if (print.exportFormat == ExportFormat::Html)
        print.exportFile =
            exportName(print.exportFile, reportName, m_services.language.text(TextReportFile), QStringLiteral(".html"));
    PrintDocument document = compose(content, progress);
    showHint();
    switch (print.exportFormat) {
    case ExportFormat::Pages:
        print.setDocument(std::move(document), progress);
        break;
    case ExportFormat::Html:
        writeHtmlFile(document, host.native(print.exportFile), progress);
        htmlnachbearbeiten(host, print.exportFile);
        break;
    case ExportFormat::Rtf:
    case ExportFormat::RtfPlain:
        writeRtfFile(document, host.native(print.exportFile), progress);
        break;
    }
}

PrintDocument Bericht::compose(const ReportContent &content, const Progress &progress)
{
    PrintDocument document;
    document.title = content.titel.isEmpty() ? m_services.language.text(TextReportFile) : content.titel;
    document.language = language::anzeigesprache(m_services.host).bcp47Name().left(2);
    document.page = settings::usablePage(m_services.print.page);
    addRunningTexts(document, content);
    if (!content.titel.isEmpty())
        document.add(Paragraph{.text = content.titel,
                               .style = document.addStyle(style(settings::Titel)),
                               .spaceAfter = Gap,
                               .keepWithNext = true,
                               .outlineLevel = Section});
    addIntroduction(document, content);
    if (vorgaben.Bildprint == 1)
        addChart(document, content);
    addCriteria(document, content);
    addAgeList(document, content, progress);
    document.add(Paragraph{.text = footerText() + QStringLiteral("  ") + now(content),
                           .style = document.addStyle(style(settings::Footer)),
                           .spaceBefore = Gap});
    return document;
}

QString Bericht::footerText() const
{
    return m_services.language.text(TextFooter);
}

QString Bericht::now(const ReportContent &content) const
{
    return content.now.toString(QStringLiteral("dd.MM.yyyy HH:mm"));
}

void Bericht::addRunningTexts(PrintDocument &document, const ReportContent &content) const
{
    if (vorgaben.isPrinted(settings::Footer))
        document.footer = {footerText() + QStringLiteral("||") + now(content),
                           document.addStyle(style(settings::Footer))};
    if (!content.titel.isEmpty() && vorgaben.isPrinted(settings::Header)) // a bar would end the left part
        document.header = {QString(content.titel).replace(u'|', u'/') + QStringLiteral("||- %d -"),
                           document.addStyle(style(settings::Header))};
}

void Bericht::addIntroduction(PrintDocument &document, const ReportContent &content) const
{
    QString rtf = content.rtf;
    rtfanpassen(0, rtf, IntroductionScale);
    QTextDocument text;
    readRtf(rtfBytes(rtf), text);
    if (text.toPlainText().trimmed().isEmpty())
        return;
    for (Block &block : richTextBlocks(text, document))
        document.add(std::move(block));
    document.add(Paragraph{.text = {}, .spaceAfter = Gap / 2});
}

void Bericht::addChart(PrintDocument &document, const ReportContent &content)
{
    const Twips width = printableWidth(document.page);
    const double shape = static_cast<double>(content.chartShape.height()) / std::max(content.chartShape.width(), 1);
    const double wanted = width * shape * settings::ReportMeasures::read(m_services.host).bildprozent / 100.0;
    auto height = static_cast<qint16>(std::min(wanted, 32767.0));
    // The chart control takes the printable width and the height in its own shape.
    PictureControl chart{
        .Image = chartImage(content.figures.tabelle, content.look, {pixels(width), pixels(height)}, PictureDpi),
        .Width = static_cast<double>(width),
        .Height = static_cast<double>(height)};
    PictureControl print;
    bildgroesse(m_services.host, chart, print, static_cast<qint16>(std::min(width, 32767)), height);

    const PrintControl &control = m_services.print;
    QString file;
    if (control.exportFormat == ExportFormat::Html)
        file = writePicture(print.Image, folderOf(control.exportFile) + chartFileName());
    else if (control.exportFormat != ExportFormat::Pages) {
        const QString folder = m_services.host.Hostverzeichnis + QStringLiteral("\\Ausdrucke");
        QDir().mkpath(m_services.host.native(folder)); // where that fails, writing tells why
        writePicture(print.Image, folder + u'\\' + chartFileName());
    }
    if (!file.isEmpty())
        document.add(Paragraph{.text = chartTag(file), .spaceAfter = Gap});
    document.add(Picture{.image = print.Image,
                         .width = static_cast<Twips>(std::lround(print.Width)),
                         .height = static_cast<Twips>(std::lround(print.Height)),
                         .alternativeText = content.look.title,
                         .fileName = file,
                         .spaceAfter = Gap});
}

void Bericht::addCriteria(PrintDocument &document, const ReportContent &content) const
{
    if (vorgaben.isPrinted(settings::TitelKriterien))
        document.add(Paragraph{.text = m_services.language.text(TextCriteria),
                               .style = document.addStyle(style(settings::TitelKriterien)),
                               .spaceBefore = Gap,
                               .spaceAfter = Gap / 4,
                               .keepWithNext = true,
                               .outlineLevel = Section + 1});
    const StyleId lineStyle = document.addStyle(style(settings::Kriterien));
    for (const QString &line : kriterien(content.criteria, content.figures, m_services.language))
        document.add(Paragraph{.text = line, .style = lineStyle});
}

void Bericht::addAgeList(PrintDocument &document, const ReportContent &content, const Progress &progress)
{
    if (vorgaben.isPrinted(settings::NeueSeite))
        document.add(PageBreak{});
    const bool headed = vorgaben.isPrinted(settings::TitelAltersliste);
    if (headed)
        document.add(Paragraph{.text = m_services.language.text(TextAgeList),
                               .style = document.addStyle(style(settings::TitelAltersliste)),
                               .spaceBefore = 2 * Gap,
                               .spaceAfter = Gap / 2,
                               .keepWithNext = true,
                               .outlineLevel = Section + 1});
    AgeListTable table({.services = m_services,
                        .pictures = m_pictures,
                        .reportName = reportName,
                        .style = style(settings::Altersliste),
                        .rowSpacing = vorgaben.rowSpacing(),
                        .headed = headed});
    table.write(document, content.list, progress);
}

QString Bericht::chartFileName() const
{
    const QString name = fileNameOf(m_services.print.exportFile);
    if (m_services.print.exportFormat == ExportFormat::Html) // which has its suffix already
        return leftPart(name, name.lastIndexOf(u'.')) + QStringLiteral(".jpg");
    return exportName(name, reportName, m_services.language.text(TextReportFile), QStringLiteral(".jpg"));
}

/// The file that was written (Windows notation); empty where the picture could not be converted, which was told.
QString Bericht::writePicture(const QImage &picture, const QString &file)
{
    QString written = file;
    QString type;
    m_pictures.bildkonvertieren({.Image = picture}, written, type);
    return m_services.host.dir(written).isEmpty() ? QString() : written;
}

void Bericht::showHint()
{
    if (m_hint != -1)
        return;
    m_hint = static_cast<qint16>(m_services.host.desktop().messageBox(m_services.language.text(TextHint), 0, {}));
}

} // namespace kalvenor::report
