// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/basic/number.h"

#include <cmath>
#include <limits>

#include <QByteArray>

#include "platform/basic/error.h"
#include "platform/basic/text.h"

using namespace Qt::StringLiterals;

namespace kalvenor::basic {

namespace {

// Walks over ASCII; every other character ends a number and stands as 0.
class Cursor {
public:
    explicit Cursor(const QByteArray &text) : m_text(text) {}

    bool atEnd() const { return m_at == m_text.size(); }
    char peek() const { return atEnd() ? '\0' : m_text[m_at]; }
    char peekLower() const { return peek() >= 'A' && peek() <= 'Z' ? static_cast<char>(peek() + 32) : peek(); }
    void next() { ++m_at; }
    bool take(char wanted)
    {
        if (peekLower() != wanted)
            return false;
        next();
        return true;
    }
    QByteArray takeDigits()
    {
        const qsizetype from = m_at;
        while (peek() >= '0' && peek() <= '9')
            next();
        return m_text.mid(from, m_at - from);
    }
    QByteArray takeSign()
    {
        if (take('-'))
            return "-";
        take('+');
        return {};
    }

private:
    const QByteArray &m_text;
    qsizetype m_at = 0;
};

QByteArray asciiOnly(QStringView text)
{
    QByteArray ascii(text.size(), '\0');
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].unicode() < 128)
            ascii[i] = static_cast<char>(text[i].unicode());
    }
    return ascii;
}

int digitValue(char lower)
{
    if (lower >= '0' && lower <= '9')
        return lower - '0';
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

struct ReadNumber {
    double value = 0;
    bool complete = false; // no digits are missing
};

// Behind "&". A value of up to 16 (32) bits is a signed integer of that size, unless "&" behind it asks for 32 bits.
ReadNumber readBased(Cursor &at)
{
    int base = 0;
    if (at.take('h'))
        base = 16;
    else if (at.take('o'))
        base = 8;
    else
        return {};
    double value = 0;
    const bool complete = digitValue(at.peekLower()) < base;
    while (digitValue(at.peekLower()) < base) {
        value = value * base + digitValue(at.peekLower());
        at.next();
    }
    const bool asLong = at.take('&');
    if (!asLong)
        at.take('%');
    if (!asLong && value > 0x7FFF && value <= 0xFFFF)
        value -= 0x10000;
    else if (value > 0x7FFFFFFF && value <= 0xFFFFFFFF)
        value -= 4294967296.0;
    return {value, complete};
}

ReadNumber readNumber(Cursor &at)
{
    if (at.take('&'))
        return readBased(at);
    QByteArray number = at.takeSign();
    const QByteArray whole = at.takeDigits();
    QByteArray fraction;
    if (at.take('.'))
        fraction = at.takeDigits();
    if (whole.isEmpty() && fraction.isEmpty())
        return {};
    number += whole + '.' + fraction + '0';
    bool complete = true;
    QByteArray exponentSign;
    if (at.take('e') || at.take('d')) {
        exponentSign = at.takeSign();
        const QByteArray exponent = at.takeDigits();
        complete = !exponent.isEmpty();
        number += 'e' + exponentSign + (complete ? exponent : "0");
    }
    bool inRange = false;
    const double value = number.toDouble(&inRange);
    if (inRange)
        return {value, complete};
    if (!exponentSign.isEmpty())
        return {0, complete};
    const double infinity = std::numeric_limits<double>::infinity();
    return {number.startsWith('-') ? -infinity : infinity, complete};
}

template <typename Integer>
Integer rounded(double value)
{
    const double whole = std::nearbyint(value); // half to even in the default rounding mode
    if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
        throw Error(Fault::NumberOutOfRange, {},
                    {value, std::numeric_limits<Integer>::min(), std::numeric_limits<Integer>::max()});
    return static_cast<Integer>(whole);
}

} // namespace

double leadingNumber(QStringView text)
{
    QByteArray kept = asciiOnly(text);
    kept.removeIf([](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    Cursor at(kept);
    return readNumber(at).value;
}

QString trimmedNumberText(double value)
{
    if (std::isnan(value))
        return u"-1.#IND"_s;
    if (std::isinf(value))
        return value < 0 ? u"-1.#INF"_s : u"1.#INF"_s;
    if (value == 0)
        return u"0"_s;

    // "d.ddddddddddddddE±xx": 15 digits and their decimal exponent.
    const QByteArray scientific = QByteArray::number(std::fabs(value), 'E', 14);
    const int exponent = scientific.mid(scientific.indexOf('E') + 1).toInt();
    QByteArray digits = scientific.left(1) + scientific.mid(2, 14);
    while (digits.endsWith('0'))
        digits.chop(1);

    QByteArray text = value < 0 ? "-" : "";
    if (exponent >= 15 || exponent < -4) {
        text += digits.left(1);
        if (digits.size() > 1)
            text += '.' + digits.mid(1);
        const QByteArray power = QByteArray::number(std::abs(exponent)).rightJustified(2, '0');
        text += (exponent < 0 ? "E-" : "E+") + power;
    } else if (exponent < 0) {
        text += '.' + QByteArray(-exponent - 1, '0') + digits;
    } else {
        const qsizetype whole = exponent + 1;
        text += digits.left(whole).leftJustified(whole, '0');
        if (digits.size() > whole)
            text += '.' + digits.mid(whole);
    }
    return QString::fromLatin1(text);
}

QString numberText(double value)
{
    const QString text = trimmedNumberText(value);
    return text.startsWith(u'-') ? text : u' ' + text;
}

qint16 toInteger16(double value)
{
    return rounded<qint16>(value);
}

qint32 toLong32(double value)
{
    return rounded<qint32>(value);
}

qint16 textToInteger16(QStringView text)
{
    const QByteArray whole = asciiOnly(trimBlanks(text));
    Cursor at(whole);
    const ReadNumber number = readNumber(at);
    if (!number.complete || !at.atEnd())
        throw Error(Fault::NoNumber, {}, {text.toString()});
    return toInteger16(number.value);
}

double toCurrency(double value)
{
    constexpr double Limit = 9223372036854775808.0; // 2^63 ten-thousandths
    const double scaled = std::nearbyint(value * 10000);
    if (!(scaled >= -Limit && scaled < Limit))
        throw Error(Fault::AmountTooLarge, {}, {value});
    return scaled / 10000;
}

} // namespace kalvenor::basic
