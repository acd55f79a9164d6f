// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/order/like.h"

#include "platform/basic/error.h"
#include "platform/jet/order/sortkey.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {

namespace {

} // namespace

LikePattern::LikePattern(QStringView pattern)
{
    using Kind = Token::Kind;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const char16_t unit = pattern[at].unicode();
        switch (unit) {
        case u'*':
            if (m_tokens.empty() || m_tokens.back().kind != Kind::AnyRun)
                m_tokens.push_back({Kind::AnyRun});
            break;
        case u'?':
            m_tokens.push_back({Kind::AnyOne});
            break;
        case u'#':
            m_tokens.push_back({Kind::Digit});
            break;
        case u'[': {
            const qsizetype end = pattern.indexOf(u']', at);
            if (end < 0) {
                throw basic::Error(basic::Fault::PatternNotClosed, {}, {pattern});
            }
            addList(pattern, pattern.mid(at + 1, end - at - 1));
            at = end;
            break;
        }
        default:
            m_tokens.push_back({Kind::Character, likeIdentity(unit)});
        }
    }
}

void LikePattern::addList(QStringView pattern, QStringView list)
{
    if (list.isEmpty())
        return;
    Token token{Token::Kind::List};
    if (list.startsWith(u'!')) {
        token.kind = Token::Kind::NotInList;
        list = list.mid(1);
    }
    token.firstRange = static_cast<std::uint32_t>(m_ranges.size());
    for (qsizetype at = 0; at < list.size(); ++at) {
        const std::uint32_t first = generalRank(list[at].unicode());
        const bool isRange = list[at] != u'-' && at + 2 < list.size() && list[at + 1] == u'-';
        if (!isRange) {
            m_ranges.push_back({first, first});
            continue;
        }
        const std::uint32_t last = generalRank(list[at + 2].unicode());
        if (last < first) {
            throw basic::Error(basic::Fault::PatternBackwards, {}, {pattern, list[at], list[at + 2]});
        }
        m_ranges.push_back({first, last});
        at += 2;
    }
    token.rangeCount = static_cast<std::uint32_t>(m_ranges.size()) - token.firstRange;
    m_tokens.push_back(token);
}

bool LikePattern::matchesOne(const Token &token, char16_t unit) const
{
    switch (token.kind) {
    case Token::Kind::Character:
        return likeIdentity(unit) == token.identity;
    case Token::Kind::AnyOne:
        return true;
    case Token::Kind::Digit:
        return unit >= u'0' && unit <= u'9';
    case Token::Kind::List:
    case Token::Kind::NotInList: {
        const std::uint32_t rank = generalRank(unit);
        const auto first = m_ranges.begin() + token.firstRange;
        const bool listed = std::any_of(first, first + token.rangeCount, [rank](const Range &range) {
            return range.first <= rank && rank <= range.last;
        });
        return listed == (token.kind == Token::Kind::List);
    }
    case Token::Kind::AnyRun:
        break;
    }
    return false;
}

bool LikePattern::matches(QStringView text) const
{
    const qsizetype length = text.size();
    const std::size_t tokenCount = m_tokens.size();
    qsizetype at = 0;
    std::size_t token = 0;
    // On a mismatch the latest star takes one character more; an earlier one never has to.
    std::size_t afterStar = 0;
    qsizetype starStart = 0;
    bool haveStar = false;
    for (;;) {
        if (token < tokenCount && m_tokens[token].kind == Token::Kind::AnyRun) {
            afterStar = ++token;
            if (token == tokenCount)
                return true;
            starStart = at;
            haveStar = true;
        }
        if (at == length)
            return token == tokenCount;
        if (token < tokenCount && matchesOne(m_tokens[token], text[at].unicode())) {
            ++token;
            ++at;
            continue;
        }
        if (!haveStar)
            return false;
        ++starStart;
        if (const Token &wanted = m_tokens[afterStar]; wanted.kind == Token::Kind::Character) {
            while (starStart < length && likeIdentity(text[starStart].unicode()) != wanted.identity)
                ++starStart;
        }
        at = starStart;
        token = afterStar;
    }
}

ByteLike::ByteLike(const LikePattern &pattern, const ByteCharacters &characters)
{
    using Kind = LikePattern::Token::Kind;
    int place = 0;
    for (const LikePattern::Token &token : pattern.m_tokens) {
        if (token.kind == Kind::AnyRun) {
            m_stays |= std::uint64_t{1} << place;
            continue;
        }
        if (++place == 64)
            return;
        for (std::size_t byte = 0; byte < m_accepts.size(); ++byte) {
            if (pattern.matchesOne(token, characters[byte]))
                m_accepts[byte] |= std::uint64_t{1} << place;
        }
    }
    m_start = 1;
    m_end = std::uint64_t{1} << place;
}

} // namespace kalvenor::jet
