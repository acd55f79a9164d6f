// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "report/composition/agelisttable.h"

#include "language/texts/sprache.h"
#include "platform/basic/text.h"
#include "platform/print/textface.h"
#include "report/composition/bericht.h"
#include "report/export/htmlexport.h"
#include "settings/store/vorgabendatei.h"
#include <cmath>
#include <QDir>
#include <QFile>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kalvenor::report {

using language::Text;

namespace {

constexpr qint64 RowsBetweenReports = 256;
constexpr print::Twips CellPadding = 2 * 70; // both sides, as the print control has it
constexpr std::size_t Age = 0, Sex = 1, Name = 2;

QString nameIn(const statistics::Alterszeile &line)
{
    return basic::trimBlanks(statistics::gekuerzterListname(line.listname));
}

} // namespace

AgeListTable::AgeListTable(Setup setup)
    : m_setup(std::move(setup)), m_html(m_setup.target.format == print::ExportFormat::Html)
{
}

print::TextStyle AgeListTable::headingStyle() const
{
    print::TextStyle style = m_setup.style;
    style.bold = true;
    return style;
}

std::vector<print::Column> AgeListTable::columns(const statistics::Altersliste &list) const
{
    const auto widths = settings::ReportMeasures::read(m_setup.session.host).spaltenbreiten;
    const print::TextFace face(m_setup.style);
    const print::TextFace headingFace(headingStyle());
    const auto fit = [](print::Twips width, const QString &widest, const print::TextFace &in) {
        const auto needed = static_cast<print::Twips>(std::ceil(in.width(widest))) + CellPadding;
        return std::max(width, needed);
    };
    print::Twips age = fit(widths[Age], u"100.0"_s, face);
    print::Twips sex = fit(fit(widths[Sex], m_setup.session.language.text(Text::ReportMan), face),
                           m_setup.session.language.text(Text::ReportWoman), face);
    if (m_setup.headed) {
        age = fit(age, m_setup.session.language.text(Text::Age), headingFace);
        sex = fit(sex, m_setup.session.language.text(Text::Sex), headingFace);
    }
    print::Twips name = widths[Name];
    if (name > 0) {
        const print::Twips room = std::max(m_setup.lineWidth + CellPadding - age - sex, 1) / (m_html ? 2 : 1);
        for (auto line = list.begin(); line != list.end() && name < room; ++line)
            name = fit(name, nameIn(*line), face);
        name = std::min(name, room);
    }
    std::vector<print::Column> columns{{.alignment = print::Alignment::Right, .width = age},
                                       {.alignment = print::Alignment::Left, .width = sex},
                                       {.alignment = print::Alignment::Left, .width = name}};
    if (m_html)
        columns.push_back({.alignment = print::Alignment::Left, .width = 0});
    return columns;
}

void AgeListTable::write(print::PrintDocument &document, const statistics::Altersliste &list,
                         const basic::Progress &progress)
{
    const print::StyleId style = document.addStyle(m_setup.style);
    print::TableStart table{.columns = columns(list), .rowSpacing = m_setup.rowSpacing};
    if (m_setup.headed) {
        const print::StyleId heading = document.addStyle(headingStyle());
        table.heading = {{{.text = m_setup.session.language.text(Text::Age), .style = heading},
                          {.text = m_setup.session.language.text(Text::Sex), .style = heading},
                          {.text = m_setup.session.language.text(Text::Name), .style = heading}}};
        if (m_html)
            table.heading.front().push_back(
                {.text = m_setup.session.language.text(Text::ReportPerson), .style = heading});
    }
    document.add(std::move(table));

    const QString man = m_setup.session.language.text(Text::ReportMan);
    const QString woman = m_setup.session.language.text(Text::ReportWoman);
    qint64 row = 0;
    for (const statistics::Alterszeile &line : list) {
        if (progress && row % RowsBetweenReports == 0 && !progress(row, static_cast<qint64>(list.size())))
            throw basic::Error(basic::Fault::StoppedReport);
        ++row;
        const bool isWoman = line.geschlecht == statistics::Geschlecht::Frau;
        print::TableRow cells{{{.text = basic::trimBlanks(statistics::alterstext(line.tage)), .style = style},
                               {.text = isWoman ? woman : man, .style = style},
                               {.text = nameIn(line), .style = style}},
                              row == static_cast<qint64>(list.size())}; // what closes the report does not stand alone
        if (m_html) {
            const QString name = fullName(line.Counter);
            if (!name.isNull())
                cells.cells.push_back({.text = link(line.Counter) + name, .style = style});
        }
        document.add(std::move(cells));
    }
}

/// First names and surname; null where the person is gone.
QString AgeListTable::fullName(qint32 counter)
{
    dao::Recordset &persons = *m_setup.session.databases.Datentabelle;
    if (!m_columns)
        m_columns.emplace(persons);
    persons.seekEqual(counter);
    return persons.noMatch() ? QString()
                             : basic::trimBlanks(persons.text(m_columns->vnamen)) + u' ' +
                                   basic::trimBlanks(persons.text(m_columns->nnamen));
}

/// The file's own name where it lies in the host program's output folder, else "".
QString AgeListTable::inOutputFolder(const QString &name)
{
    if (!m_outputFiles) { // one look for all persons
        m_outputFiles.emplace();
        const host::Host &host = m_setup.session.host;
        const QDir folder(host.native(outputFolder(host)));
        const QStringList files = folder.entryList(QDir::Files);
        for (const QString &file : files)
            m_outputFiles->insert(file.toUpper(), file);
    }
    return m_outputFiles->value(name.toUpper());
}

/// Empty where the host program has written no page of the person.
QString AgeListTable::link(qint32 counter)
{
    const QString page = personPage(counter, m_setup.reportName);
    if (inOutputFolder(page).isEmpty())
        return {};
    return personLink(page, pictureOf(page), m_setup.session.language.text(Text::ToPersonsPage));
}

/// The person's picture beside the page, under the page's name; a BMP is converted to JPEG first.
QString AgeListTable::pictureOf(const QString &page)
{
    const host::Host &host = m_setup.session.host;
    const basic::WindowsPath folder = outputFolder(host);
    const QString name = basic::leftPart(page, page.lastIndexOf(u'.') + 1);
    for (const char *extension : {"JPG", "JPEG", "PNG", "GIF"}) {
        QString picture = inOutputFolder(name + QLatin1String(extension));
        if (!picture.isEmpty())
            return picture;
    }
    QString bmp = inOutputFolder(name + u"BMP"_s);
    if (bmp.isEmpty())
        return symbol();
    PictureControl picture{.Image = QImage(host.native(folder + bmp))};
    if (picture.Image.isNull() || !m_converts)
        return bmp;
    // Under a name of its own: converting deletes the BMP of the same name, which is the host program's.
    basic::WindowsPath written = folder + (u'~' + name + u"JPG"_s);
    QString type;
    m_setup.pictures.bildkonvertieren(picture, written, type);
    QString converted = basic::leftPart(name, name.size() - 1) + written.text().mid(written.text().lastIndexOf(u'.'));
    if (!host.dir(written).isEmpty() && type == u"JPG" &&
        QFile::rename(host.native(written), host.native(folder + converted)))
        return converted;
    QFile::remove(host.native(written));
    m_converts = false;
    return bmp;
}

/// A small drawing of a page, written once beside the report.
QString AgeListTable::symbol()
{
    if (!m_symbol.isEmpty())
        return m_symbol;
    QImage drawing(16, 16, QImage::Format_RGB32);
    drawing.fill(Qt::white);
    QPainter painter(&drawing);
    painter.setPen(QColor(0, 0, 128));
    painter.drawRect(3, 1, 9, 13);
    for (const int y : {4, 7, 10})
        painter.drawLine(5, y, 10, y);
    painter.end();
    basic::WindowsPath file = symbolFile(m_setup.target.file);
    QString type;
    m_setup.pictures.bildkonvertieren({.Image = drawing}, file, type);
    m_symbol = fileNameOf(file);
    return m_symbol;
}

} // namespace kalvenor::report
