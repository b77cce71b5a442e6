// SPDX-License-Identifier: GPL-2.0-or-later
#include "game/keyvalues.h"

#include <QFile>
#include <QFileInfo>

namespace KeyValues {

namespace {

class Reader {
public:
    explicit Reader(const QByteArray& text)
        : m_text(text)
    {
    }

    // Pairs until the closing brace (depth > 0) or the end (depth 0).
    bool pairs(QList<Pair>& into, int depth)
    {
        for (;;) {
            const Token key = next();
            if (key.kind == Token::End)
                return depth == 0;
            if (key.kind == Token::Close)
                return depth > 0;
            if (key.kind != Token::Text || ++m_pairs > MaxPairs)
                return false;
            Pair pair;
            pair.key = key.text;
            Token value = next();
            if (value.kind == Token::Condition)
                value = next();
            if (value.kind == Token::Open) {
                if (depth + 1 >= MaxDepth)
                    return false;
                pair.block = true;
                if (!pairs(pair.pairs, depth + 1))
                    return false;
            } else if (value.kind == Token::Text) {
                pair.value = value.text;
                skipCondition();
            } else {
                return false;
            }
            into.append(std::move(pair));
        }
    }

private:
    struct Token {
        enum Kind { End, Open, Close, Text, Condition, Bad } kind = End;
        QString text;
    };

    void skipSpaceAndComments()
    {
        while (m_at < m_text.size()) {
            const char c = m_text.at(m_at);
            if (c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f' || c == '\v') {
                ++m_at;
            } else if (c == '/' && m_at + 1 < m_text.size() && m_text.at(m_at + 1) == '/') {
                const qsizetype end = m_text.indexOf('\n', m_at);
                m_at = end < 0 ? m_text.size() : end + 1;
            } else {
                return;
            }
        }
    }

    void skipCondition()
    {
        const qsizetype before = m_at;
        if (next().kind != Token::Condition)
            m_at = before;
    }

    Token next()
    {
        skipSpaceAndComments();
        if (m_at >= m_text.size())
            return {Token::End, {}};
        const char c = m_text.at(m_at);
        if (c == '{' || c == '}') {
            ++m_at;
            return {c == '{' ? Token::Open : Token::Close, {}};
        }
        if (c == '[') {
            const qsizetype end = m_text.indexOf(']', m_at);
            if (end < 0)
                return {Token::Bad, {}};
            m_at = end + 1;
            return {Token::Condition, {}};
        }
        if (c == '"')
            return quoted();
        const qsizetype start = m_at;
        while (m_at < m_text.size()) {
            const char d = m_text.at(m_at);
            if (d == ' ' || d == '\t' || d == '\r' || d == '\n' || d == '"' || d == '{' || d == '}')
                break;
            ++m_at;
        }
        return {Token::Text, QString::fromUtf8(m_text.mid(start, m_at - start))};
    }

    Token quoted()
    {
        QByteArray bytes;
        for (++m_at; m_at < m_text.size(); ++m_at) {
            char c = m_text.at(m_at);
            if (c == '"') {
                ++m_at;
                return {Token::Text, QString::fromUtf8(bytes)};
            }
            if (c == '\\' && m_at + 1 < m_text.size()) {
                c = m_text.at(++m_at);
                c = c == 'n' ? '\n' : c == 't' ? '\t' : c;
            }
            bytes.append(c);
        }
        // A quote left open: the file was cut.
        return {Token::Bad, {}};
    }

    const QByteArray& m_text;
    qsizetype m_at = 0;
    qsizetype m_pairs = 0;
};

} // namespace

const Pair* Pair::find(QStringView name) const
{
    for (const Pair& pair : pairs)
        if (pair.key.compare(name, Qt::CaseInsensitive) == 0)
            return &pair;
    return nullptr;
}

QString Pair::text(QStringView name) const
{
    const Pair* pair = find(name);
    return pair && !pair->block ? pair->value : QString();
}

std::optional<QList<Pair>> parse(const QByteArray& text)
{
    if (text.size() > MaxBytes)
        return std::nullopt;
    QList<Pair> pairs;
    Reader reader(text);
    if (!reader.pairs(pairs, 0))
        return std::nullopt;
    return pairs;
}

std::optional<QList<Pair>> readFile(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > MaxBytes)
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // The size read, not the size asked: a file may grow meanwhile.
    return parse(file.read(MaxBytes + 1));
}

} // namespace KeyValues
