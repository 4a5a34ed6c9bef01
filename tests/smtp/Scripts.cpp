#include "smtp/Scripts.h"

using namespace Qt::StringLiterals;

namespace {

/// One thing that the client says in one go, and the points at which the server answers it.
struct Exchange
{
    QString client;
    QList<Point> answers;
};

QList<Exchange> exchangesOf(Mode mode)
{
    const QString mail = u"C: MAIL FROM:<sender@example.org>\n"_s;
    const QString rcpt = u"C: RCPT TO:<anna@example.net>\n"_s;
    const QString content = u"C: <stuffed>\nC: .\n"_s;
    switch (mode) {
    case Mode::Chunking:
        return {{u"C: RSET\n"_s + mail + rcpt + u"C: BDAT <size> LAST\nC: <message>\n"_s,
                 {Point::Rset, Point::Mail, Point::Rcpt, Point::Final}}};
    case Mode::Pipelining:
        return {{u"C: RSET\n"_s + mail + rcpt + u"C: DATA\n"_s,
                 {Point::Rset, Point::Mail, Point::Rcpt, Point::Data}},
                {content, {Point::Final}}};
    case Mode::Plain:
        return {{mail, {Point::Mail}},
                {rcpt, {Point::Rcpt}},
                {u"C: DATA\n"_s, {Point::Data}},
                {content, {Point::Final}}};
    }
    return {};
}

} // namespace

QString nameOf(Mode mode)
{
    switch (mode) {
    case Mode::Chunking:
        return u"CHUNKING"_s;
    case Mode::Pipelining:
        return u"PIPELINING"_s;
    case Mode::Plain:
        return u"neither"_s;
    }
    return {};
}

QString nameOf(Point point)
{
    static const QStringList Names = {u"the greeting"_s, u"EHLO"_s, u"RSET"_s,       u"MAIL"_s,
                                      u"RCPT"_s,         u"DATA"_s, u"the content"_s};
    return Names[static_cast<int>(point)];
}

QString opening(Mode mode, Point upTo)
{
    QString script = u"C: <connects>\n"_s;
    if (upTo == Point::Greeting)
        return script;
    script += u"S: 220 server.example ready\nC: EHLO [127.0.0.1]\n"_s;
    if (upTo == Point::Ehlo)
        return script;
    if (mode != Mode::Plain)
        script += u"S: 250-server.example\nS: 250-PIPELINING\n"_s;
    if (mode == Mode::Chunking)
        script += u"S: 250-CHUNKING\n"_s;
    return script + u"S: 250 HELP\n"_s;
}

QString startingTls()
{
    return opening(Mode::Plain, Point::Ehlo) +
           u"S: 250-server.example\nS: 250 STARTTLS\nC: STARTTLS\n"_s;
}

QString encryptedOpening()
{
    return startingTls() + u"S: <encrypts>\nC: <encrypts>\nC: EHLO [127.0.0.1]\n"_s;
}

QString message(Mode mode, Point upTo)
{
    QString script;
    for (const Exchange &exchange : exchangesOf(mode)) {
        script += exchange.client;
        for (const Point point : exchange.answers) {
            if (point == upTo)
                return script;
            script += point == Point::Data ? u"S: 354 go ahead\n"_s : u"S: 250 ok\n"_s;
        }
    }
    return script;
}

QList<Point> pointsOf(Mode mode)
{
    QList<Point> points;
    for (const Exchange &exchange : exchangesOf(mode))
        points += exchange.answers;
    return points;
}
