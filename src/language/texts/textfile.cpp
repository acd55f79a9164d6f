// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/textfile.h"

#include <QDir>
#include <QFile>
#include <QStringList>

using namespace Qt::StringLiterals;

static void initTextResources()
{
    Q_INIT_RESOURCE(texts); // a static library's resources are not found by themselves
}

namespace kalvenor::language {

TextFile readTextFile(const QString &content)
{
    TextFile texts;
    for (QStringView line : QStringView(content).split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        const qsizetype tab = line.indexOf(u'\t');
        bool isNumber = false;
        const qint16 id = line.first(qMax<qsizetype>(tab, 0)).toShort(&isNumber);
        if (isNumber && tab + 1 < line.size())
            texts[id] = line.sliced(tab + 1).toString();
    }
    return texts;
}

TextFile textsOfLanguage(const QString &language)
{
    initTextResources();
    // Looked for among those that are there: the name comes from a settings file.
    const QDir folder(u":/texts"_s);
    for (const QString &name : folder.entryList()) {
        QFile file(folder.filePath(name));
        if (name.compare(language + u".txt"_s, Qt::CaseInsensitive) == 0 && file.open(QIODevice::ReadOnly))
            return readTextFile(QString::fromUtf8(file.readAll()));
    }
    return {};
}

} // namespace kalvenor::language
