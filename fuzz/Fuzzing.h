#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <algorithm>
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

/// Makes choices by the bytes, for targets that build what they read. When there are no more bytes
/// every choice is the first.
class Choices
{
public:
    explicit Choices(QByteArrayView bytes) : m_rest(bytes) {}

    [[nodiscard]] bool isAtEnd() const { return m_rest.isEmpty(); }
    /// From 0 to that number, 255 at the most.
    [[nodiscard]] int upTo(qsizetype most)
    {
        if (isAtEnd())
            return 0;
        const int byte = static_cast<unsigned char>(m_rest.front());
        m_rest = m_rest.sliced(1);
        return byte % static_cast<int>(std::clamp<qsizetype>(most, 0, 255) + 1);
    }
    [[nodiscard]] bool oneIn(int count) { return upTo(count - 1) == count - 1; }
    template <typename List>
    [[nodiscard]] auto oneOf(const List &list)
    {
        return *(std::begin(list) + upTo(static_cast<qsizetype>(std::size(list)) - 1));
    }
    /// As many bytes as they say themselves.
    [[nodiscard]] QByteArrayView bytes()
    {
        const qsizetype size = std::min<qsizetype>(upTo(255), m_rest.size());
        const QByteArrayView taken = m_rest.first(size);
        m_rest = m_rest.sliced(size);
        return taken;
    }

private:
    QByteArrayView m_rest;
};
