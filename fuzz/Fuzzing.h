#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdio>
#include <cstdlib>

/// What a fuzz target is: it is given bytes that anybody may have written, and aborts when what
/// must hold for all bytes does not.
void fuzz(QByteArrayView bytes);

/// Aborts with that text unless it holds.
inline void mustHold(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "This does not hold: %s\n", what);
    std::abort();
}

/// Hands out pieces of the bytes, each ended by a zero byte, for targets that need several.
class Pieces
{
public:
    explicit Pieces(QByteArrayView bytes) : m_rest(bytes) {}

    [[nodiscard]] QByteArrayView next()
    {
        const qsizetype end = m_rest.indexOf('\0');
        const QByteArrayView piece = end < 0 ? m_rest : m_rest.first(end);
        m_rest = m_rest.sliced(end < 0 ? m_rest.size() : end + 1);
        return piece;
    }

private:
    QByteArrayView m_rest;
};
