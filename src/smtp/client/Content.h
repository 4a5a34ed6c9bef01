#pragma once

#include <QByteArray>
#include <QList>

/// A run of whole lines, each ended by CR LF.
struct Segment
{
    QByteArray lines;
    bool isDotFree = false; ///< known to have no line that begins with a dot

    /// The lines as DATA transfers them: a dot put before each that begins with one (RFC 5321,
    /// section 4.5.2). Shares the bytes when there is none.
    [[nodiscard]] QByteArray stuffed() const;
};

/// A message as a list of segments. Those that all messages of a run have in common are shared,
/// never copied.
struct Content
{
    QList<Segment> segments;

    /// In bytes, before dot-stuffing.
    [[nodiscard]] qint64 size() const;
    /// All segments as one text.
    [[nodiscard]] QByteArray toByteArray() const;
};

/// Puts a message together from pieces: small ones are pasted into one run, large shared ones
/// stand by themselves.
class ContentWriter
{
public:
    ContentWriter() { m_run.reserve(4096); }

    /// Bytes that belong to this message alone, or are too few to share.
    ContentWriter &operator<<(QByteArrayView bytes)
    {
        m_run += bytes;
        return *this;
    }
    /// Whole lines that other messages have too. What was pasted before ends in a line end.
    ContentWriter &operator<<(const Segment &segment);

    /// Whether what was written so far ends in a line end.
    [[nodiscard]] bool isAtLineStart() const;
    /// The message; it ends in a line end.
    [[nodiscard]] Content finish();

private:
    void endRun();

    Content m_content;
    QByteArray m_run;
};
