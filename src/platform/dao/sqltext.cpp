// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/dao/sqltext.h"

#include "platform/basic/error.h"
#include <algorithm>
#include <array>
#include <sqlite3.h>

namespace kalvenor::dao {

using namespace Qt::StringLiterals;

namespace {

// Words that the grammar of the statements here needs: never taken for a name, in Jet neither.
constexpr std::array Structural{
    u"ALL",    u"AND",      u"AS",     u"ASC",       u"BETWEEN", u"BY",     u"CASE",   u"CAST",  u"COLLATE", u"CROSS",
    u"DESC",   u"DISTINCT", u"ELSE",   u"END",       u"ESCAPE",  u"EXCEPT", u"EXISTS", u"FROM",  u"FULL",    u"GROUP",
    u"HAVING", u"IN",       u"INNER",  u"INTERSECT", u"IS",      u"JOIN",   u"LEFT",   u"LIKE",  u"LIMIT",   u"NATURAL",
    u"NOT",    u"NULL",     u"OFFSET", u"ON",        u"OR",      u"ORDER",  u"OUTER",  u"RIGHT", u"SELECT",  u"SET",
    u"THEN",   u"UNION",    u"UPDATE", u"USING",     u"WHEN",    u"WHERE"};

bool same(QStringView left, QStringView right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

bool isStructural(QStringView word)
{
    return std::any_of(Structural.begin(), Structural.end(),
                       [word](const char16_t *other) { return same(word, QStringView(other)); });
}

bool isKeyword(QStringView word)
{
    const QByteArray utf8 = word.toUtf8();
    return sqlite3_keyword_check(utf8.constData(), static_cast<int>(utf8.size())) != 0;
}

bool isAscii(QStringView word)
{
    return std::all_of(word.begin(), word.end(), [](QChar c) { return c.unicode() < 0x80; });
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool beginsWord(QChar c)
{
    return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c == u'_' || c.unicode() >= 0x80;
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n' || c == u'\f';
}

qsizetype skipDigits(QStringView text, qsizetype at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

qsizetype endOfNumber(QStringView text, qsizetype at)
{
    at = skipDigits(text, at);
    if (at < text.size() && text[at] == u'.')
        at = skipDigits(text, at + 1);
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        const bool sign = at + 1 < text.size() && (text[at + 1] == u'+' || text[at + 1] == u'-');
        const qsizetype digits = at + (sign ? 2 : 1);
        if (digits < text.size() && isDigit(text[digits]))
            at = skipDigits(text, digits);
    }
    return at;
}

/// One behind the closing mark; a doubled one does not close. -1 where it is not closed.
qsizetype endOfQuoted(QStringView text, qsizetype at, QChar close)
{
    for (++at; at < text.size(); ++at) {
        if (text[at] != close)
            continue;
        if (close == u']' || at + 1 >= text.size() || text[at + 1] != close)
            return at + 1;
        ++at;
    }
    return -1;
}

QString excerpt(QStringView text, qsizetype at)
{
    constexpr qsizetype most = 40;
    return text.size() - at > most ? text.mid(at, most).toString() + u'…' : text.mid(at).toString();
}

} // namespace

SqlText::SqlText(const QString &sql, const QString &place) : m_text(sql)
{
    cut(place);
    const auto isSemicolon = [this](const Token &token) {
        return view(token) == u";";
    };
    while (!m_tokens.empty() && isSemicolon(m_tokens.back()))
        m_tokens.pop_back();
    const auto seam = std::find_if(m_tokens.begin(), m_tokens.end(), isSemicolon);
    if (seam != m_tokens.end())
        throw basic::Error(basic::Fault::SecondStatement, {.file = place},
                           {excerpt(m_text, seam->start + 1).trimmed()});
    if (m_tokens.empty())
        throw basic::Error(basic::Fault::StatementEmpty, {.file = place});
}

void SqlText::cut(const QString &place)
{
    const QStringView text = m_text;
    for (qsizetype at = 0; at < text.size();) {
        const QChar c = text[at];
        const QChar next = at + 1 < text.size() ? text[at + 1] : QChar();
        qsizetype end = at + 1;
        Token::Kind kind = Token::Kind::Sign;
        if (isBlank(c)) {
            ++at;
            continue;
        }
        if (c == u'\'' || c == u'"' || c == u'`' || c == u'[') {
            kind = c == u'\'' ? Token::Kind::Text : Token::Kind::Name;
            end = endOfQuoted(text, at, c == u'[' ? QChar(u']') : c);
            if (end < 0)
                failUnclosed(at, kind == Token::Kind::Text, place);
        } else if (beginsWord(c)) {
            kind = Token::Kind::Word;
            while (end < text.size() && (beginsWord(text[end]) || isDigit(text[end]) || text[end] == u'$'))
                ++end;
        } else if (isDigit(c) || (c == u'.' && isDigit(next))) {
            kind = Token::Kind::Number;
            end = endOfNumber(text, at);
        } else if ((c == u'-' && next == u'-') || (c == u'/' && next == u'*')) {
            throw basic::Error(basic::Fault::NoComments, {.file = place}, {c, next});
        } else if (!QStringView(u"+-*/%&|~<>=!(),.;").contains(c)) {
            throw c.isPrint() ? basic::Error(basic::Fault::SignUnknown, {.file = place}, {c, excerpt(text, at)})
                              : basic::Error(basic::Fault::ControlCharacter, {.file = place});
        }
        m_tokens.push_back({kind, at, end - at});
        at = end;
    }
}

void SqlText::failUnclosed(qsizetype at, bool isText, const QString &place) const
{
    if (!isText)
        throw basic::Error(basic::Fault::NameNotClosed, {.file = place}, {excerpt(m_text, at)});
    // An apostrophe within a text ended it; what is left of it stands directly behind.
    for (std::size_t i = 1; i < m_tokens.size(); ++i) {
        const Token &before = m_tokens[i - 1];
        if (before.kind == Token::Kind::Text && before.start + before.length == m_tokens[i].start) {
            at = before.start;
            break;
        }
    }
    throw basic::Error(basic::Fault::SearchTextNotClosed, {.file = place}, {excerpt(m_text, at)});
}

bool SqlText::isWord(std::size_t token, QStringView word) const
{
    return token < m_tokens.size() && m_tokens[token].kind == Token::Kind::Word && same(view(m_tokens[token]), word);
}

bool SqlText::isSign(std::size_t token, QStringView sign) const
{
    return token < m_tokens.size() && m_tokens[token].kind == Token::Kind::Sign && view(m_tokens[token]) == sign;
}

bool SqlText::isNameOrWord(std::size_t token) const
{
    return token < m_tokens.size() &&
           (m_tokens[token].kind == Token::Kind::Word || m_tokens[token].kind == Token::Kind::Name);
}

bool SqlText::beginsWith(QStringView word) const
{
    return isWord(0, word);
}

QString SqlText::nameOf(const Token &token) const
{
    const QStringView whole = view(token);
    if (token.kind == Token::Kind::Word)
        return whole.toString();
    QString name = whole.mid(1, whole.size() - 2).toString();
    const QChar quote = whole.front();
    return quote == u'[' ? name : name.replace(QString(2, quote), QString(quote));
}

QStringList SqlText::names() const
{
    QStringList names;
    for (const Token &token : m_tokens) {
        if (token.kind == Token::Kind::Word || token.kind == Token::Kind::Name)
            names.append(nameOf(token));
    }
    return names;
}

std::size_t SqlText::indexOf(QStringView word) const
{
    std::size_t i = 0;
    while (i < m_tokens.size() && !isWord(i, word))
        ++i;
    return i;
}

bool SqlText::deliversPlainRows() const
{
    int selects = 0;
    for (std::size_t i = 0; i < m_tokens.size(); ++i) {
        for (const char16_t *word :
             {u"DISTINCT", u"GROUP", u"HAVING", u"UNION", u"INTERSECT", u"EXCEPT", u"OVER", u"WITH", u"JOIN"}) {
            if (isWord(i, word))
                return false;
        }
        if (isWord(i, u"SELECT"))
            ++selects;
        if (m_tokens[i].kind == Token::Kind::Number && i > indexOf(u"ORDER") &&
            (isWord(i - 1, u"BY") || isSign(i - 1, u",")))
            return false;
    }
    return selects == 1 && beginsWith(u"SELECT") && indexOf(u"FROM") < m_tokens.size();
}

std::optional<ConstantUpdate> SqlText::constantUpdate(const QStringList &known) const
{
    if (!isWord(0, u"UPDATE") || !isNameOrWord(1) || !isWord(2, u"SET") || !isNameOrWord(3) || !isSign(4, u"="))
        return {};
    const std::size_t value = isSign(5, u"-") || isSign(5, u"+") ? 6 : 5;
    if (value >= m_tokens.size())
        return {};
    ConstantUpdate update;
    if (m_tokens[value].kind == Token::Kind::Number) {
        bool isNumber = false;
        update.on = view(m_tokens[value]).toDouble(&isNumber) != 0.0;
        if (!isNumber)
            return {};
    } else {
        update.on = isWord(value, u"TRUE");
        if ((!update.on && !isWord(value, u"FALSE")) || known.contains(view(m_tokens[value]), Qt::CaseInsensitive))
            return {};
    }
    const std::size_t where = value + 1;
    if (where < m_tokens.size()) {
        if (!isWord(where, u"WHERE") || !closesOnlyItsOwn(where))
            return {};
        const Token &last = m_tokens.back();
        const qsizetype begin = m_tokens[where].start + m_tokens[where].length;
        update.condition = u"(%1)"_s.arg(QStringView(m_text).mid(begin, last.start + last.length - begin));
    }
    update.table = nameOf(m_tokens[1]);
    update.column = nameOf(m_tokens[3]);
    return update;
}

bool SqlText::closesOnlyItsOwn(std::size_t first) const
{
    int open = 0;
    for (std::size_t i = first; i < m_tokens.size() && open >= 0; ++i)
        open += isSign(i, u"(") ? 1 : isSign(i, u")") ? -1 : 0;
    return open == 0;
}

/// The word stands behind `column =`, `column <>` …
bool SqlText::followsComparison(std::size_t token) const
{
    std::size_t at = token;
    while (at > 0 && (isSign(at - 1, u"=") || isSign(at - 1, u"<") || isSign(at - 1, u">") || isSign(at - 1, u"!")))
        --at;
    return at < token && at > 0 && isNameOrWord(at - 1);
}

QString SqlText::adapted(const QStringList &known) const
{
    return adapted(0, m_tokens.size(), known);
}

QString SqlText::adaptedForRows(const QStringList &known, bool ordered) const
{
    return u"SELECT NULL "_s + adapted(indexOf(u"FROM"), ordered ? m_tokens.size() : indexOf(u"ORDER"), known);
}

QString SqlText::finalOrder() const
{
    const std::size_t order = indexOf(u"ORDER");
    const std::size_t end = m_tokens.size() - (isWord(m_tokens.size() - 1, u"ASC") ? 1 : 0);
    if (order + 3 != end || !isWord(order + 1, u"BY"))
        return {};
    const Token &column = m_tokens[order + 2];
    return column.kind == Token::Kind::Word || column.kind == Token::Kind::Name ? nameOf(column) : QString();
}

QString SqlText::adapted(std::size_t first, std::size_t last, const QStringList &known) const
{
    QString result;
    result.reserve(m_text.size() + 16);
    qsizetype copied = first < m_tokens.size() ? m_tokens[first].start : m_text.size();
    for (std::size_t i = first; i < last; ++i) {
        const Token &token = m_tokens[i];
        result += QStringView(m_text).mid(copied, token.start - copied);
        copied = token.start + token.length;
        const QStringView word = view(token);
        const bool name = token.kind == Token::Kind::Word;
        if (name && i > 0 && m_tokens[i - 1].kind == Token::Kind::Number &&
            m_tokens[i - 1].start + m_tokens[i - 1].length == token.start)
            result += u' ';
        const auto meant =
            name && !isStructural(word)
                ? std::find_if(known.begin(), known.end(), [word](const QString &other) { return same(word, other); })
                : known.end();
        if (meant != known.end() && (isKeyword(word) || !isAscii(word)))
            result += u'"' + QString(*meant).replace(u'"', u"\"\""_s) + u'"';
        else if (meant == known.end() && name && same(word, u"TRUE") && followsComparison(i))
            result += u"-1";
        else
            result += word;
    }
    return result;
}

} // namespace kalvenor::dao
