// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/errormessage.h"

#include <functional>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace kalvenor::language {

namespace {

/// What a text is in the reader's language.
using Lookup = std::function<QString(Text)>;

Lookup lookupIn(Sprachmodul &texts)
{
    return [&texts](Text id) {
        return texts.text(id);
    };
}

Lookup lookupIn(CatalogueLanguage language)
{
    return [language](Text id) {
        return wording(id, language);
    };
}

QString sentenceOf(const Lookup &texts, basic::Fault fault)
{
    return texts(static_cast<Text>(fault));
}

QString wordsOf(const Lookup &texts, const basic::Argument &argument)
{
    return argument.word == basic::Fault::None ? argument.text : sentenceOf(texts, argument.word);
}

/// Each place %1 to %9 becomes its argument, whatever signs that holds.
QString filled(const Lookup &texts, const basic::Error::Part &part)
{
    const QString sentence = sentenceOf(texts, part.fault);
    QString result;
    for (qsizetype i = 0; i < sentence.size(); ++i) {
        const int digit = sentence[i] == u'%' && i + 1 < sentence.size() ? sentence[i + 1].digitValue() : 0;
        if (digit < 1 || digit > static_cast<int>(part.arguments.size())) {
            result += sentence[i];
            continue;
        }
        const basic::Argument &argument = part.arguments[static_cast<std::size_t>(digit - 1)];
        result += wordsOf(texts, argument);
        ++i;
    }
    return result;
}

QString placeInWords(const Lookup &texts, const basic::Place &place)
{
    QStringList words{place.file};
    if (!place.table.isEmpty())
        words << texts(Text::PlaceTable).arg(place.table);
    if (place.page >= 0)
        words << texts(Text::PlacePage).arg(place.page);
    if (place.line >= 0)
        words << texts(Text::PlaceLine).arg(place.line);
    words << place.item;
    words.removeAll(QString());
    return words.join(u", "_s);
}

QString sentences(const Lookup &texts, const basic::Error &error)
{
    QStringList all;
    for (const basic::Error::Part &part : error.parts())
        all << filled(texts, part);
    return all.join(u' ');
}

QString message(const Lookup &texts, const basic::Error &error)
{
    const QString place = placeInWords(texts, error.place());
    return (place.isEmpty() ? QString() : place + u": "_s) + sentences(texts, error);
}

QString line(const Lookup &texts, const jet::Damage &damage)
{
    QStringList examples;
    for (const basic::Error &example : damage.examples)
        examples << message(texts, example);
    const QString first = examples.join(u' ');
    return placeInWords(texts, damage.place) + u": "_s +
           (damage.count == 1 ? first : texts(Text::DamageTimes).arg(QString::number(damage.count), first));
}

} // namespace

QString errorSentence(Sprachmodul &texts, const basic::Error &error)
{
    return sentences(lookupIn(texts), error);
}

QString inWords(Sprachmodul &texts, const basic::Argument &argument)
{
    return wordsOf(lookupIn(texts), argument);
}

QString errorMessage(Sprachmodul &texts, const basic::Error &error)
{
    return message(lookupIn(texts), error);
}

QString errorMessage(CatalogueLanguage language, const basic::Error &error)
{
    return message(lookupIn(language), error);
}

QString damageLine(Sprachmodul &texts, const jet::Damage &damage)
{
    return line(lookupIn(texts), damage);
}

QString damageLine(CatalogueLanguage language, const jet::Damage &damage)
{
    return line(lookupIn(language), damage);
}

void reportError(desktop::Desktop &desktop, Sprachmodul &texts, const basic::Error &error)
{
    desktop.runtimeError(texts.text(Text::RuntimeError).arg(error.number()), errorMessage(texts, error));
}

} // namespace kalvenor::language
