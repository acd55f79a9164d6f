// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/demohost.h"

#include "demo/familydatabase.h"
#include "demo/population.h"
#include "demo/sidedatabases.h"
#include "platform/basic/codepage.h"
#include "platform/basic/error.h"
#include "platform/basic/file.h"
#include "platform/basic/path.h"
#include <QDir>
#include <QFileInfo>

namespace kalvenor {

namespace {

constexpr int mostPersons = 2'000'000;
constexpr qsizetype longestSetting = 255; // what a profile read returns at most

void makeFolder(const QString &folder)
{
    if (!QDir().mkpath(folder))
        throw Error(ErrorKind::WriteFailed, folder,
                    QStringLiteral("The folder cannot be made. Choose a folder that you may write to."));
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QString reason;
    if (!replaceFileSafely(path, bytes, &reason))
        throw Error(ErrorKind::WriteFailed, path, QStringLiteral("Cannot be written: %1").arg(reason));
}

/// The path as the settings file holds it; refused where a profile read would not give it back.
QByteArray settingOf(const QString &nativePath)
{
    const QString path = windowsPath(nativePath);
    QByteArray bytes = encodeAnsi(path);
    if (decodeAnsi(bytes) != path)
        throw Error(ErrorKind::Refused, nativePath,
                    QStringLiteral("The host's settings file cannot hold this path: it has characters outside "
                                   "Windows-1252. Choose another folder."));
    if (bytes.size() > longestSetting)
        throw Error(ErrorKind::Refused, nativePath,
                    QStringLiteral("The host's settings file cannot hold this path: it is longer than 255 characters. "
                                   "Choose a folder with a shorter path."));
    return bytes;
}

QByteArray hostSettings(const QString &familyDatabase, const QString &prints)
{
    return "[Ansicht]\r\nSprache=Deutsch\r\nKurzhilfe=1\r\nAddInonTop=0\r\nBildminhoehe=2000\r\n"
           "[QV-Files]\r\n0=" +
           settingOf(familyDatabase) + "\r\n[Verzeichnisse]\r\nPrints=" + settingOf(prints) +
           "\r\n[Grafik]\r\nJPG-Faktor=70\r\n";
}

QByteArray personPage(const demo::PrintedPerson &person)
{
    const QString page =
        QStringLiteral("<!DOCTYPE html>\r\n<html lang=\"de\">\r\n<head>\r\n<meta charset=\"utf-8\">\r\n"
                       "<title>%1</title>\r\n</head>\r\n<body>\r\n<h1>%1</h1>\r\n<table>\r\n"
                       "<tr><th>Nummer</th><td>%2</td></tr>\r\n<tr><th>Geschlecht</th><td>%3</td></tr>\r\n"
                       "<tr><th>Geboren</th><td>%4 in %6</td></tr>\r\n<tr><th>Gestorben</th><td>%5</td></tr>\r\n"
                       "</table>\r\n</body>\r\n</html>\r\n");
    return page
        .arg(person.name.toHtmlEscaped(), QString::number(person.counter),
             person.woman ? QStringLiteral("Frau") : QStringLiteral("Mann"), person.born, person.died,
             person.place.toHtmlEscaped())
        .toUtf8();
}

void fillHostFolder(const DemoHost &host, quint32 seed, const Progress &progress)
{
    const QDir folder(host.hostFolder);
    const QString prints = folder.filePath(QStringLiteral("Ausdrucke"));
    const QByteArray settings = hostSettings(host.familyDatabase, prints);
    makeFolder(host.programFolder);
    makeFolder(prints);
    makeFolder(QFileInfo(host.familyDatabase).path());

    demo::Random random(seed);
    const demo::Population population = demo::makePopulation(host.persons, random, progress);
    for (const demo::PrintedPerson &person :
         demo::writeFamilyDatabase(host.familyDatabase, population, random, progress))
        writeFile(QDir(prints).filePath(QStringLiteral("%1-D.html").arg(person.counter)), personPage(person));

    demo::writeEventDatabase(folder.filePath(QStringLiteral("Ereignis.mdb")));
    demo::writeHistoryDatabase(folder.filePath(QStringLiteral("Geschichte.mdb")));
    demo::writeNameDatabase(folder.filePath(QStringLiteral("namen.mdb")));
    demo::writePlaceDatabase(folder.filePath(QStringLiteral("orte.mdb")));
    demo::writeLanguageDatabase(folder.filePath(QStringLiteral("ADD-IN-LANGUAGE.MDB")));
    demo::writeLanguageDatabase(folder.filePath(QStringLiteral("language.mdb")));
    // Last, so that an installation with settings is a whole one.
    writeFile(folder.filePath(QStringLiteral("programm.ini")), settings);
}

} // namespace

DemoHost makeDemoHost(const DemoOptions &options, const Progress &progress)
{
    if (options.persons < 1 || options.persons > mostPersons)
        throw Error(ErrorKind::InvalidProcedureCall, {},
                    QStringLiteral("A demonstration has 1 to 2,000,000 persons, not %1.").arg(options.persons));
    if (options.folder.isEmpty())
        throw Error(ErrorKind::InvalidProcedureCall, {},
                    QStringLiteral("No folder is named in which to make the demonstration."));

    DemoHost host;
    host.hostFolder = QDir::cleanPath(QDir(options.folder).absoluteFilePath(QStringLiteral("QV")));
    host.programFolder = host.hostFolder + QStringLiteral("/Kalvenor");
    host.familyDatabase = host.hostFolder + QStringLiteral("/Daten/Familie.mdb");
    host.persons = options.persons;

    const QFileInfo existing(host.hostFolder);
    if (existing.exists() && !existing.isDir())
        throw Error(ErrorKind::Refused, host.hostFolder,
                    QStringLiteral("There is a file of this name already. Choose another folder."));
    if (existing.exists() &&
        !QDir(host.hostFolder).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        throw Error(ErrorKind::Refused, host.hostFolder,
                    QStringLiteral("This folder exists already and is not empty. Nothing was changed; choose another "
                                   "folder or remove this one first."));
    makeFolder(host.hostFolder);
    try {
        fillHostFolder(host, options.seed, progress);
    } catch (...) {
        QDir(host.hostFolder).removeRecursively(); // it was empty: all that is in it is ours
        throw;
    }
    return host;
}

} // namespace kalvenor
