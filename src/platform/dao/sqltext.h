// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <QString>
#include <QStringList>
#include <vector>

namespace kalvenor::dao {

/// An UPDATE that sets one column to one value in all its rows. Names are without quotes and brackets.
struct ConstantUpdate {
    QString table{};
    QString column{};
    bool on = false;     ///< the value, as a Yes/No column takes it
    QString condition{}; ///< what follows WHERE, in brackets that it cannot leave; empty where all rows are meant
};

/// One SQL statement cut into its words, so that what Jet's dialect allows and SQLite's does not can be adapted
/// word by word. Texts in quotes and names in brackets are never touched.
class SqlText {
public:
    /// Throws InvalidSql for a text or name that is not closed or a character no statement holds, and Refused for a
    /// second statement; `place` is the error's place.
    SqlText(const QString &sql, const QString &place);

    const QString &text() const { return m_text; }
    /// The first word is this one.
    bool beginsWith(QStringView word) const;
    /// All that may name a table, column or function, without quotes and brackets.
    QStringList names() const;
    /// A single SELECT … FROM that neither joins, groups, combines nor drops equal rows: each row of its result is a
    /// row of one table, in the moment when it is delivered. Nor does it sort by the number of a field.
    bool deliversPlainRows() const;
    /// Where the statement is UPDATE table SET column = number, True or False, with or without WHERE (and a WHERE that
    /// closes only brackets of its own); `known` as in adapted(). Nothing for any other statement.
    std::optional<ConstantUpdate> constantUpdate(const QStringList &known) const;

    /// The statement for SQLite: a blank between a number and a letter directly behind it; a bare word that is one of
    /// `known` (without regard to case) and would not be understood as a name is quoted; a column compared with or set
    /// to True gets -1, as Yes/No columns hold it.
    QString adapted(const QStringList &known) const;
    /// The same with NULL for the field list, and without `ORDER BY finalOrder()`: for one who needs to know which
    /// rows, not what stands in them, and orders them himself. Only for statements that deliver plain rows.
    QString adaptedForRows(const QStringList &known, bool ordered) const;
    /// The column that the statement ends with sorting by, ascending and by nothing else; else empty.
    QString finalOrder() const;

private:
    struct Token {
        enum class Kind : quint8 { Word, Number, Text, Name, Sign } kind;
        qsizetype start;
        qsizetype length;
    };
    void cut(const QString &place);
    QStringView view(const Token &token) const { return QStringView(m_text).mid(token.start, token.length); }
    bool isWord(std::size_t token, QStringView word) const;
    bool isSign(std::size_t token, QStringView sign) const;
    bool isNameOrWord(std::size_t token) const;
    bool followsComparison(std::size_t token) const;
    QString nameOf(const Token &token) const;
    std::size_t indexOf(QStringView word) const;
    bool closesOnlyItsOwn(std::size_t first) const;
    /// What stands for the tokens from `first` to before `last`.
    QString adapted(std::size_t first, std::size_t last, const QStringList &known) const;
    [[noreturn]] void failUnclosed(qsizetype at, bool isText, const QString &place) const;

    QString m_text;
    std::vector<Token> m_tokens; ///< without blanks and the semicolons at the end
};

} // namespace kalvenor::dao
