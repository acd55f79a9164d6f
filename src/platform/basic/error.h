// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/fault.h"
#include <concepts>
#include <exception>
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

namespace kalvenor::basic {

/// Where something went wrong; what is not known is left out.
struct Place {
    QString file = {};  ///< native path, or the name of a printer
    QString table = {}; ///< its name
    qint64 page = -1;   ///< of a database file
    qint64 line = -1;   ///< of a text file, from 1
    QString item = {};  ///< what else tells the place: a person, a row

    bool operator==(const Place &) const = default;
};

/// What stands for one of a sentence's places %1, %2, …: a text of the data, a number, or a word to be translated.
struct Argument {
    Argument() = default;
    Argument(QString shown) : text(std::move(shown)) {}
    Argument(QStringView shown) : text(shown.toString()) {}
    Argument(QChar shown) : text(shown) {}
    Argument(QLatin1StringView shown) : text(shown) {}
    Argument(std::integral auto number) : text(QString::number(number)) {}
    Argument(double number) : text(QString::number(number)) {}
    Argument(Fault translated) : word(translated) {}

    QString text = {};
    Fault word = Fault::None;

    bool isEmpty() const { return text.isEmpty() && word == Fault::None; }
    bool operator==(const Argument &) const = default;
};

/// Where in the sources something was thrown.
struct SourceLine {
    const char *file = "";
    int line = 0;
    static SourceLine here(const char *file = __builtin_FILE(), int line = __builtin_LINE()) { return {file, line}; }
};

/// The one error type of the program: data from which the message is made where it is shown, in the reader's language
/// (language::errorMessage). The top catches it once per user action.
class Error : public std::exception {
public:
    /// One sentence and what fills it. More than one: the fault, then what else is to be said of it.
    struct Part {
        Fault fault;
        std::vector<Argument> arguments;
        bool operator==(const Part &) const = default;
    };

    explicit Error(Fault fault, Place place = {}, std::vector<Argument> arguments = {},
                   SourceLine source = SourceLine::here());

    ErrorKind kind() const { return m_kind; }
    Fault fault() const { return m_parts.front().fault; }
    const std::vector<Part> &parts() const { return m_parts; }
    /// The fault's arguments as texts; a word gives its enumerator's name.
    QStringList arguments() const;
    const Place &place() const { return m_place; }
    QString message() const { return QString::fromUtf8(m_what); }
    /// The same with kind, number and the line that threw it.
    QString technical() const;

    /// The same with a remark behind it.
    Error with(Fault remark, std::vector<Argument> arguments = {}) const;
    /// The same followed by what another error says, whose place is left out.
    Error with(const Error &other) const;
    /// The same at another place.
    Error at(Place place) const;

    /// The number under which users of the classic runtime know this kind.
    int number() const;
    /// Technical, for logs: "/a/b.kvl, line 3: TemplateCut (WordTitle)".
    const char *what() const noexcept override { return m_what.constData(); }

private:
    void describe();

    ErrorKind m_kind;
    Place m_place;
    std::vector<Part> m_parts;
    SourceLine m_source;
    QByteArray m_what;
};

} // namespace kalvenor::basic
