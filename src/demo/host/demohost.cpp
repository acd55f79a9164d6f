// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/demohost.h"

#include "demo/family/population.h"
#include "demo/host/familydatabase.h"
#include "demo/host/sidedatabases.h"
#include "platform/basic/codepage.h"
#include "platform/basic/error.h"
#include "platform/basic/path.h"
#include "platform/storage/replacement.h"
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

namespace {

constexpr int MostPersons = 2'000'000;
constexpr qsizetype LongestSetting = 255; // what a profile read returns at most

/// The folder, or the outermost one above it that is not there.
QString outermostMissing(const QString &folder)
{
    const QString above = QFileInfo(folder).path();
    return QFileInfo::exists(above) ? folder : outermostMissing(above);
}

void makeFolder(const QString &folder)
{
    if (!QDir().mkpath(folder))
        throw basic::Error(basic::Fault::FolderNotMade, {.file = folder});
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    basic::Argument reason;
    if (!storage::replaceFileSafely(basic::NativePath(path), bytes, &reason, storage::Origin::NewHost))
        throw basic::Error(basic::Fault::NotWritten, {.file = path}, {reason});
}

/// The path as the settings file holds it; refused where a profile read would not give it back.
QByteArray settingOf(const QString &nativePath)
{
    QByteArray bytes = basic::encodeAnsi(basic::storedPath(basic::windowsPath(nativePath).text()));
    if (bytes.size() > LongestSetting)
        throw basic::Error(basic::Fault::PathTooLong, {.file = nativePath});
    return bytes;
}

QByteArray hostSettings(const QString &familyDatabase, const QString &prints)
{
    return "[Ansicht]\r\nSprache=Deutsch\r\nKurzhilfe=1\r\nAddInonTop=0\r\nBildminhoehe=2000\r\n"
           "[QV-Files]\r\n0=" +
           settingOf(familyDatabase) + "\r\n[Verzeichnisse]\r\nPrints=" + settingOf(prints) +
           "\r\n[Grafik]\r\nJPG-Faktor=70\r\n";
}

QByteArray personPage(const PrintedPerson &person)
{
    const QString page = u"<!DOCTYPE html>\r\n<html lang=\"de\">\r\n<head>\r\n<meta charset=\"utf-8\">\r\n"
                         "<title>%1</title>\r\n</head>\r\n<body>\r\n<h1>%1</h1>\r\n<table>\r\n"
                         "<tr><th>Nummer</th><td>%2</td></tr>\r\n<tr><th>Geschlecht</th><td>%3</td></tr>\r\n"
                         "<tr><th>Geboren</th><td>%4 in %6</td></tr>\r\n<tr><th>Gestorben</th><td>%5</td></tr>\r\n"
                         "</table>\r\n</body>\r\n</html>\r\n"_s;
    return page
        .arg(person.name.toHtmlEscaped(), QString::number(person.counter), person.woman ? u"Frau"_s : u"Mann"_s,
             person.born, person.died, person.place.toHtmlEscaped())
        .toUtf8();
}

void fillHostFolder(const DemoHost &host, quint32 seed, const basic::Progress &progress)
{
    const QDir folder(host.hostFolder);
    const QString prints = folder.filePath(u"Ausdrucke"_s);
    const QByteArray settings = hostSettings(host.familyDatabase, prints);
    makeFolder(host.programFolder);
    makeFolder(prints);
    makeFolder(QFileInfo(host.familyDatabase).path());

    Random random(seed);
    const Population population = makePopulation(host.persons, random, progress);
    for (const PrintedPerson &person : writeFamilyDatabase(host.familyDatabase, population, random, progress))
        writeFile(QDir(prints).filePath(u"%1-D.html"_s.arg(person.counter)), personPage(person));

    writeEventDatabase(folder.filePath(u"Ereignis.mdb"_s));
    for (const QString &name : {u"Geschichte.mdb"_s, u"namen.mdb"_s, u"orte.mdb"_s})
        writeUnreadDatabase(host.hostFolder, name);
    writeLanguageDatabase(folder.filePath(u"ADD-IN-LANGUAGE.MDB"_s));
    writeLanguageDatabase(folder.filePath(u"language.mdb"_s));
    // Last, so that an installation with settings is a whole one.
    writeFile(folder.filePath(u"programm.ini"_s), settings);
}

} // namespace

DemoHost makeDemoHost(const DemoOptions &options, const basic::Progress &progress)
{
    if (options.persons < 1 || options.persons > MostPersons)
        throw basic::Error(basic::Fault::DemoSize, {}, {options.persons});
    if (options.folder.isEmpty())
        throw basic::Error(basic::Fault::DemoNowhere);

    DemoHost host;
    host.hostFolder = QDir::cleanPath(QDir(options.folder).absoluteFilePath(u"QV"_s));
    host.programFolder = host.hostFolder + u"/Kalvenor"_s;
    host.familyDatabase = host.hostFolder + u"/Daten/Familie.mdb"_s;
    host.persons = options.persons;

    const QFileInfo existing(host.hostFolder);
    if (existing.exists() && !existing.isDir())
        throw basic::Error(basic::Fault::FileInTheWay, {.file = host.hostFolder});
    if (existing.exists() &&
        !QDir(host.hostFolder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        throw basic::Error(basic::Fault::FolderNotEmpty, {.file = host.hostFolder});
    const QString outermost = outermostMissing(host.hostFolder);
    try {
        makeFolder(host.hostFolder);
        fillHostFolder(host, options.seed, progress);
    } catch (...) {
        QDir(outermost).removeRecursively(); // it was empty or not there: all that is in it is ours
        throw;
    }
    return host;
}

} // namespace kalvenor::demo
