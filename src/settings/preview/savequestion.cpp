// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/preview/savequestion.h"

#include <QDir>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace kalvenor::settings {

QString saveFilter()
{
    QString filter;
    for (const char *kind : {"|RTF-Texte (*.rtf)|*.rtf", "|PDF-Files (*.pdf)|*.pdf", "|HTML (*HTML)|*.html"})
        filter += QLatin1String(kind);
    return filter.mid(1);
}

QString defaultExtension(const QString &filter)
{
    for (const char *extension : {"*.pdf", "*.HTML", "*.RTF"}) {
        if (filter.contains(QString::fromLatin1(extension + 2).toUpper()))
            return QLatin1String(extension);
    }
    return {};
}

QString dialogFilters(const QString &filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList kinds;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString name = parts[i].left(parts[i].indexOf(u'(')).trimmed();
        kinds << u"%1 (%2)"_s.arg(name, parts[i + 1]);
    }
    return kinds.join(u";;"_s);
}

QString lastFour(const QString &fileName)
{
    return fileName.right(4).toUpper();
}

SavedAs savedAs(const QString &fileName)
{
    const QString ending = lastFour(fileName);
    if (ending == u".RTF")
        return SavedAs::Rtf;
    if (ending == u".PDF")
        return SavedAs::Pdf;
    return ending == u"HTML" ? SavedAs::Html : SavedAs::Nothing;
}

basic::WindowsPath printsFolder(const host::Host &host)
{
    return host.readPath(host.hostSettingsFile(), u"Verzeichnisse"_s, u"Prints"_s,
                         host.Hostverzeichnis + u"\\Ausdrucke"_s);
}

QString askForSaveFile(QWidget &parent, const host::Host &host, const QString &title)
{
    const QString filter = saveFilter();
    QString folder = host.native(printsFolder(host));
    if (!QDir(folder).exists())
        folder = host.native(host.Hostverzeichnis);
    const desktop::FileQuestion question{.title = title,
                                         .folder = folder,
                                         .filters = dialogFilters(filter),
                                         .suffix = defaultExtension(filter).mid(2).toLower()};
    while (true) {
        QString chosen = host.desktop().saveFileName(&parent, question);
        parent.setCursor(Qt::WaitCursor);
        if (chosen.isEmpty() || filter.toUpper().contains(lastFour(chosen)))
            return chosen;
    }
}

} // namespace kalvenor::settings
