// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/composition/bericht.h"

#include "language/texts/errormessage.h"
#include "platform/basic/text.h"
#include "platform/chart/chartpicture.h"
#include "platform/print/htmlwriter.h"
#include "platform/print/richtextblocks.h"
#include "platform/print/rtffile.h"
#include "platform/richtext/rtfreader.h"
#include "platform/storage/gate.h"
#include "report/composition/agelisttable.h"
#include "report/export/htmlexport.h"
#include "report/export/rtfanpassen.h"
#include "settings/store/vorgabendatei.h"
#include <cmath>
#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace kalvenor::report {

using language::Text;

namespace {

constexpr double PictureDpi = 220;
constexpr double TwipsPerInch = 1440;
constexpr print::Twips Gap = 200; ///< between two sections
/// Sizes of the introductory text are printed as the editor shows them.
constexpr double IntroductionScale = 1;

/// Of the page's height between the margins: a chart as its shape has it, and one made larger.
constexpr double UsualChartShare = 0.6;
constexpr double LargestChartShare = 0.9;

constexpr int Section = 1; ///< outline level

int pixels(double twips)
{
    return static_cast<int>(std::lround(twips / TwipsPerInch * PictureDpi));
}

print::Twips printableWidth(const print::PageSetup &page)
{
    return (page.landscape ? page.paperHeight : page.paperWidth) - page.left - page.right;
}

basic::WindowsPath withoutEnding(const basic::WindowsPath &file)
{
    return basic::WindowsPath(basic::leftPart(file.text(), file.text().lastIndexOf(u'.')));
}

/// The pictures beside a report: those that a failed run has made go with it.
class NewPictures {
public:
    NewPictures(const host::Host &host, const std::vector<basic::WindowsPath> &files)
    {
        for (const basic::WindowsPath &file : files) {
            if (host.dir(file).isEmpty())
                m_files << host.native(file);
        }
    }
    ~NewPictures()
    {
        for (const QString &file : m_files)
            QFile::remove(file);
    }
    Q_DISABLE_COPY_MOVE(NewPictures)
    void keep() { m_files.clear(); }

private:
    QStringList m_files;
};

} // namespace

Bericht::Bericht(data::Session &session, print::PrintControl &print)
    : m_session(session), m_print(print), m_pictures(session.host, session.language)
{
}

void Bericht::initladen()
{
    settings::initladen(m_session.host, vorgaben, m_print.page);
}

bool Bericht::initspeichern() const
{
    return settings::initspeichern(m_session.host, vorgaben, m_print.page);
}

basic::WindowsPath Bericht::auswahldrucken(const ReportContent &content, print::ExportTarget target,
                                           const basic::Progress &progress)
{
    const host::Host &host = m_session.host;
    host.desktop().setPointer(desktop::Pointer::Hourglass);
    const auto restore = qScopeGuard([&host] { host.desktop().setPointer(desktop::Pointer::Default); });
    initladen();
    if (target.format == print::ExportFormat::Html)
        target.file = exportName(target.file, reportName, m_session.language.text(Text::ReportName), u".html"_s);
    if (target.format != print::ExportFormat::Pages) // before any picture is made
        storage::checkTarget(host.native(target.file), storage::Origin::Named);
    if (target.format == print::ExportFormat::Html)
        storage::checkTarget(host.native(rawPage(target.file)), storage::Origin::Beside);
    NewPictures newPictures(host, picturesBeside(target));
    const Ingredients wanted = ingredients(content);
    const bool isShown = content.results != 0 && m_shown == wanted;
    switch (target.format) {
    case print::ExportFormat::Pages: {
        print::PrintDocument document = compose(content, target, progress);
        showHint();
        m_print.setDocument(std::move(document), progress);
        m_shown = wanted;
        break;
    }
    case print::ExportFormat::Html: {
        const print::PrintDocument document = compose(content, target, progress);
        showHint();
        const basic::NativePath raw = host.native(rawPage(target.file));
        const auto removeRaw = qScopeGuard([&raw] { QFile::remove(raw); }); // also where its writing fails at the end
        print::writeHtmlFile(document, raw, progress);
        htmlnachbearbeiten(host, target.file);
        break;
    }
    case print::ExportFormat::Rtf:
    case print::ExportFormat::RtfPlain: {
        print::PrintDocument document;
        if (!isShown)
            document = compose(content, target, progress);
        else if (vorgaben.Bildprint == 1)
            copyForHost(std::get<print::Picture>(m_print.document().blocks()[head(content).chart]).image, target);
        showHint();
        print::writeRtfFile(isShown ? m_print.document() : document, host.native(target.file), progress);
        break;
    }
    }
    newPictures.keep();
    return target.file;
}

Bericht::Ingredients Bericht::ingredients(const ReportContent &content) const
{
    return {content.results,
            content.statistik,
            content.look,
            content.chartShape,
            content.criteria,
            vorgaben,
            settings::ReportMeasures::read(m_session.host),
            m_print.page};
}

const Bericht::Head &Bericht::head(const ReportContent &content)
{
    Ingredients wanted = ingredients(content);
    if (content.results != 0 && m_head.of == wanted)
        return m_head;
    m_head = {};
    print::PrintDocument &document = m_head.document;
    document.title =
        content.statistik.titel.isEmpty() ? m_session.language.text(Text::ReportName) : content.statistik.titel;
    document.language = language::anzeigesprache(m_session.host).bcp47Name().left(2);
    document.page = settings::usablePage(m_print.page);
    addRunningTexts(document, content);
    if (!content.statistik.titel.isEmpty())
        document.add(print::Paragraph{.text = content.statistik.titel,
                                      .style = document.addStyle(style(settings::Titel)),
                                      .spaceAfter = Gap,
                                      .keepWithNext = true,
                                      .outlineLevel = Section});
    addIntroduction(document, content);
    m_head.chart = document.blocks().size();
    if (vorgaben.Bildprint == 1)
        addChart(document, content);
    addCriteria(document, content);
    m_head.of = std::move(wanted);
    ++composed.heads;
    return m_head;
}

print::PrintDocument Bericht::compose(const ReportContent &content, const print::ExportTarget &target,
                                      const basic::Progress &progress)
{
    const Head &begin = head(content);
    print::PrintDocument document = begin.document.withoutBlocks();
    addRunningTexts(document, content); // with the time of now
    for (std::size_t i = 0; i < begin.document.blocks().size(); ++i) {
        const print::Block &block = begin.document.blocks()[i];
        if (i == begin.chart && vorgaben.Bildprint == 1)
            addPicture(document, std::get<print::Picture>(block), target);
        else
            document.add(block);
    }
    addAgeList(document, content, target, progress);
    ++composed.ageLists;
    document.add(print::Paragraph{.text = footerText() + u"  "_s + now(content),
                                  .style = document.addStyle(style(settings::Footer)),
                                  .spaceBefore = Gap});
    return document;
}

QString Bericht::footerText() const
{
    return m_session.language.text(Text::ReportFooter);
}

QString Bericht::now(const ReportContent &content) const
{
    return content.now.toString(u"dd.MM.yyyy HH:mm"_s);
}

void Bericht::addRunningTexts(print::PrintDocument &document, const ReportContent &content) const
{
    if (vorgaben.isPrinted(settings::Footer))
        document.footer = {footerText() + u"||"_s + now(content), document.addStyle(style(settings::Footer))};
    if (!content.statistik.titel.isEmpty() && vorgaben.isPrinted(settings::Header)) // a bar would end the left part
        document.header = {QString(content.statistik.titel).replace(u'|', u'/') + u"||- %d -"_s,
                           document.addStyle(style(settings::Header))};
}

void Bericht::addIntroduction(print::PrintDocument &document, const ReportContent &content) const
{
    QTextDocument text;
    richtext::readWholeRtf(content.statistik.rtf, text, content.introductionFile);
    if (text.toPlainText().trimmed().isEmpty())
        return;
    const QString rtf = rtfanpassen(text, IntroductionScale);
    richtext::readWholeRtf(richtext::rtfBytes(rtf), text, content.introductionFile);
    for (print::Block &block : print::richTextBlocks(text, document))
        document.add(std::move(block));
    document.add(print::Paragraph{.text = {}, .spaceAfter = Gap / 2});
}

void Bericht::addChart(print::PrintDocument &document, const ReportContent &content) const
{
    const print::Twips width = printableWidth(document.page);
    const double shape = static_cast<double>(content.chartShape.height()) / std::max(content.chartShape.width(), 1);
    const print::PageSetup &page = document.page;
    const double room = (page.landscape ? page.paperWidth : page.paperHeight) - page.top - page.bottom;
    const int percent = settings::ReportMeasures::read(m_session.host).bildprozent;
    const double wanted = std::min(width * shape, room * UsualChartShare) * percent / 100;
    auto height = static_cast<qint16>(std::min({wanted, room * LargestChartShare, 32767.0}));
    // The chart control takes the printable width and the height in its own shape.
    PictureControl chart{
        .Image = chart::chartImage(content.figures.tabelle, content.look, {pixels(width), pixels(height)}, PictureDpi),
        .Width = static_cast<double>(width),
        .Height = static_cast<double>(height)};
    PictureControl print;
    bildgroesse(m_session.host, chart, print, static_cast<qint16>(std::min(width, 32767)), height);

    document.add(print::Picture{.image = print.Image,
                                .width = static_cast<print::Twips>(std::lround(print.Width)),
                                .height = static_cast<print::Twips>(std::lround(print.Height)),
                                .alternativeText = content.look.title,
                                .spaceAfter = Gap});
}

/// The chart, with the file that this format wants of it.
void Bericht::addPicture(print::PrintDocument &document, const print::Picture &picture,
                         const print::ExportTarget &target)
{
    basic::WindowsPath file;
    if (target.format == print::ExportFormat::Html)
        file = writePicture(picture.image, target);
    else if (target.format != print::ExportFormat::Pages)
        copyForHost(picture.image, target);
    if (!file.isEmpty())
        document.add(print::Paragraph{.text = chartTag(file), .spaceAfter = Gap});
    print::Picture placed = picture;
    placed.fileName = file.text();
    document.add(std::move(placed));
}

void Bericht::addCriteria(print::PrintDocument &document, const ReportContent &content) const
{
    if (vorgaben.isPrinted(settings::TitelKriterien))
        document.add(print::Paragraph{.text = m_session.language.text(Text::CriteriaHeading),
                                      .style = document.addStyle(style(settings::TitelKriterien)),
                                      .spaceBefore = Gap,
                                      .spaceAfter = Gap / 4,
                                      .keepWithNext = true,
                                      .outlineLevel = Section + 1});
    const print::StyleId lineStyle = document.addStyle(style(settings::Kriterien));
    const QStringList lines =
        kriterien(content.criteria, content.statistik, content.figures, content.list.size(), m_session.language);
    for (const QString &line : lines) // on one page
        document.add(print::Paragraph{.text = line, .style = lineStyle, .keepWithNext = &line != &lines.back()});
}

void Bericht::addAgeList(print::PrintDocument &document, const ReportContent &content,
                         const print::ExportTarget &target, const basic::Progress &progress)
{
    const bool newPage = vorgaben.isPrinted(settings::NeueSeite);
    if (newPage)
        document.add(print::PageBreak{});
    else if (vorgaben.print(settings::NeueSeite) == 0)
        document.add(print::Paragraph{.text = {}, .spaceAfter = Gap / 2});
    const bool headed = vorgaben.isPrinted(settings::TitelAltersliste);
    if (headed)
        document.add(print::Paragraph{.text = m_session.language.text(Text::AgeListHeading),
                                      .style = document.addStyle(style(settings::TitelAltersliste)),
                                      .spaceBefore = newPage ? 2 * Gap : Gap,
                                      .spaceAfter = Gap / 2,
                                      .keepWithNext = true,
                                      .outlineLevel = Section + 1});
    AgeListTable table({.session = m_session,
                        .target = target,
                        .pictures = m_pictures,
                        .reportName = reportName,
                        .style = style(settings::Altersliste),
                        .rowSpacing = vorgaben.rowSpacing(),
                        .lineWidth = printableWidth(document.page),
                        .headed = headed});
    table.write(document, content.list, progress);
}

/// Beside the page in HTML, else in the host program's folder.
basic::WindowsPath Bericht::chartFile(const print::ExportTarget &target) const
{
    if (target.format == print::ExportFormat::Html) // which has its suffix already
        return withoutEnding(target.file) + u".jpg"_s;
    const basic::WindowsPath name(fileNameOf(target.file));
    return outputFolder(m_session.host) +
           exportName(name, reportName, m_session.language.text(Text::ReportName), u".jpg"_s).text();
}

std::vector<basic::WindowsPath> Bericht::picturesBeside(const print::ExportTarget &target) const
{
    if (target.format == print::ExportFormat::Pages)
        return {};
    const basic::WindowsPath base = withoutEnding(chartFile(target));
    return {base + u".JPG"_s, base + u".BMP"_s, symbolFile(target.file)};
}

/// The file that was written; empty where the picture could not be converted, which was told.
basic::WindowsPath Bericht::writePicture(const QImage &picture, const print::ExportTarget &target)
{
    basic::WindowsPath written = chartFile(target);
    QString type;
    if (target.format != print::ExportFormat::Html)
        QDir().mkpath(m_session.host.native(folderOf(written))); // where that fails, writing says so
    m_pictures.bildkonvertieren({.Image = picture}, written, type);
    return m_session.host.dir(written).isEmpty() ? basic::WindowsPath() : written;
}

/// The picture in the host program's folder, which the report does without: a failure is told and ends nothing.
void Bericht::copyForHost(const QImage &picture, const print::ExportTarget &target)
{
    try {
        writePicture(picture, target);
    } catch (const basic::Error &error) {
        language::Sprachmodul &texts = m_session.language;
        m_session.host.desktop().messageBox(
            texts.text(Text::PictureCopyFailed).arg(language::errorMessage(texts, error)), 0, texts.text(Text::Error));
    }
}

void Bericht::showHint()
{
    if (m_hint != -1)
        return;
    m_hint = static_cast<qint16>(
        m_session.host.desktop().messageBox(m_session.language.text(Text::PrintSettingsHint), 0, {}));
}

} // namespace kalvenor::report
