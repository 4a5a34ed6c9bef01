#include "smtp/TestMishaps.h"

#include "smtp/Dialogue.h"
#include "smtp/Scripts.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Modes = {Mode::Chunking, Mode::Pipelining, Mode::Plain};

/// The ways in which a server says nothing that can be read.
struct Cut
{
    QString name;
    QString script;
    QString error; ///< when there is no message
};

const std::array Cuts = {
    Cut{u"closes"_s, u"S: <closes>\n"_s, u"closed"_s},
    Cut{u"is silent"_s, u"S: <nothing>\nC: <closes>\n"_s, u"timed out"_s},
    Cut{u"says no reply"_s, u"S: hello, world\nC: <closes>\n"_s, u"unreadable"_s},
    Cut{u"says half a reply and closes"_s, u"S: 250-one\nS: <closes>\n"_s, u"closed"_s},
    Cut{u"says two codes in one reply"_s, u"S: 250-one\nS: 251 two\nC: <closes>\n"_s,
        u"unreadable"_s},
    Cut{u"never ends its line"_s, u"S: <endless line>\nC: <closes>\n"_s, u"unreadable"_s},
};

/// Limits of which only that of one point can expire in a test.
Limits limitsFor(Point point)
{
    using namespace std::chrono_literals;
    Limits limits;
    switch (point) {
    case Point::Greeting:
        limits.opening = 1ms;
        break;
    case Point::Ehlo:
        limits.hello = 1ms;
        break;
    case Point::Rset:
        limits.reset = 1ms;
        break;
    case Point::Mail:
        limits.mail = 1ms;
        break;
    case Point::Rcpt:
        limits.recipient = 1ms;
        break;
    case Point::Data:
        limits.dataCommand = 1ms;
        break;
    case Point::Final:
        limits.content = 1ms;
        break;
    }
    return limits;
}

/// A cut leaves a message in doubt once it is wholly written: with CHUNKING that is from the start.
bool isInDoubt(Mode mode, Point point)
{
    return mode == Mode::Chunking || point == Point::Final;
}

/// The server's answers to what the client has written behind a command that failed.
QString answersBehind(Mode mode, Point point)
{
    const QList<Point> points = pointsOf(mode);
    qsizetype behind = points.size() - points.indexOf(point) - 1;
    if (mode == Mode::Plain)
        behind = 0;
    else if (mode == Mode::Pipelining)
        --behind; // the content is not written yet
    return u"S: 503 5.5.1 bad sequence\n"_s.repeated(std::max<qsizetype>(behind, 0));
}

const QString Begin = u"E: Connect\n"_s;
const QString Send = u"E< ready\nE: Send\n"_s;
const QString Goodbye = u"E: Disconnect\nC: QUIT\nS: 221 bye\nC: <closes>\n"_s;

} // namespace

void TestMishaps::opening_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<Point>("point");

    for (const Point point : {Point::Greeting, Point::Ehlo}) {
        const QString upTo = Begin + ::opening(Mode::Plain, point);
        for (const Cut &cut : Cuts)
            QTest::addRow("at %s the server %s", qUtf8Printable(nameOf(point)),
                          qUtf8Printable(cut.name))
                << upTo + cut.script + u"E< error: "_s + cut.error << point;
        QTest::addRow("at %s the server is not available", qUtf8Printable(nameOf(point)))
            << upTo + u"S: 421 too busy\nC: <closes>\nE< error: server refuses"_s << point;
    }
    QTest::newRow("the server greets with a refusal")
        << Begin + ::opening(Mode::Plain, Point::Greeting) +
               u"S: 554 5.7.1 go away\nC: <closes>\nE< error: server refuses"_s
        << Point::Greeting;
    QTest::newRow("the server knows neither EHLO nor HELO")
        << Begin + ::opening(Mode::Plain, Point::Ehlo) +
               u"S: 502 what?\nC: HELO [127.0.0.1]\nS: 502 what?\nC: <closes>\n"
               u"E< error: server refuses"_s
        << Point::Final;
}

void TestMishaps::opening()
{
    QFETCH(QString, script);
    QFETCH(Point, point);
    const bool isSilence = script.contains(u"<nothing>");
    Dialogue dialogue(isSilence ? limitsFor(point) : Limits());
    QCOMPARE(dialogue.play(script), QString());
    QCOMPARE(dialogue.server.connectionCount(), 1);
}

void TestMishaps::cut_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("connections");

    for (const Mode mode : Modes) {
        for (const Point point : pointsOf(mode)) {
            for (const Cut &cut : Cuts) {
                if (cut.name == u"is silent")
                    continue; // the second session would be as impatient
                const QString upTo = Begin + ::opening(mode) + Send + message(mode, point);
                const QString again = ::opening(mode) + message(mode) +
                                      u"S: 250 queued\nE< sent: 250 queued\nE< ready\n"_s + Goodbye;
                QTest::addRow("%s: at %s the server %s", qUtf8Printable(nameOf(mode)),
                              qUtf8Printable(nameOf(point)), qUtf8Printable(cut.name))
                    << upTo + cut.script +
                           (isInDoubt(mode, point) ? u"E< error: in doubt, perhaps accepted: -\n"_s
                                                   : again)
                    << (isInDoubt(mode, point) ? 1 : 2);
            }
        }
    }
}

void TestMishaps::cut()
{
    QFETCH(QString, script);
    QFETCH(int, connections);
    Dialogue dialogue;
    QCOMPARE(dialogue.play(script), QString());
    QCOMPARE(dialogue.server.connectionCount(), connections);
}

void TestMishaps::secondCut_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<Point>("point");
    QTest::addColumn<int>("connections");

    for (const Mode mode : Modes) {
        for (const Point point : pointsOf(mode)) {
            for (const Cut &cut : Cuts) {
                const QString upTo = ::opening(mode) + Send + message(mode, point) + cut.script;
                const QString again = ::opening(mode) + message(mode, point) + cut.script;
                QTest::addRow("%s: at %s the server %s", qUtf8Printable(nameOf(mode)),
                              qUtf8Printable(nameOf(point)), qUtf8Printable(cut.name))
                    << Begin + upTo +
                           (isInDoubt(mode, point) ? u"E< error: in doubt, perhaps accepted: -\n"_s
                                                   : again + u"E< error: not taken: -\n"_s)
                    << point << (isInDoubt(mode, point) ? 1 : 2);
            }
        }
    }
}

void TestMishaps::secondCut()
{
    QFETCH(QString, script);
    QFETCH(Point, point);
    QFETCH(int, connections);
    const bool isSilence = script.contains(u"<nothing>");
    Dialogue dialogue(isSilence ? limitsFor(point) : Limits());
    QCOMPARE(dialogue.play(script), QString());
    QCOMPARE(dialogue.server.connectionCount(), connections);
}

void TestMishaps::serviceNotAvailable_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("connections");

    const QString closing = u"S: 421 4.3.2 shutting down\nS: <closes>\n"_s;
    const QString reply = u"421 4.3.2 shutting down"_s;
    for (const Mode mode : Modes) {
        for (const Point point : pointsOf(mode)) {
            const bool isFinal = point == Point::Final;
            const QString upTo = Begin + ::opening(mode) + Send + message(mode, point);
            const QString again = ::opening(mode) + message(mode) +
                                  u"S: 250 queued\nE< sent: 250 queued\nE< ready\n"_s + Goodbye;
            const QString refused = u"E< refused: "_s + reply + u"\nE< ready\n"_s;
            // Where no other answer is due, the client closes first.
            const QString answers = answersBehind(mode, point);
            if (!answers.isEmpty())
                QTest::addRow("%s: 421 to %s, then the server closes", qUtf8Printable(nameOf(mode)),
                              qUtf8Printable(nameOf(point)))
                    << upTo + closing + again << 2;
            QTest::addRow("%s: 421 to %s, then the server answers what was written",
                          qUtf8Printable(nameOf(mode)), qUtf8Printable(nameOf(point)))
                << upTo + u"S: "_s + reply + u'\n' + answers + u"C: <closes>\n"_s +
                       (isFinal ? refused : again)
                << (isFinal ? 1 : 2);
        }
    }
}

void TestMishaps::serviceNotAvailable()
{
    cut();
}

void TestMishaps::refusal_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("connections");

    for (const Mode mode : Modes) {
        for (const Point point : pointsOf(mode)) {
            const QString upTo = Begin + ::opening(mode) + Send + message(mode, point);
            if (point == Point::Rset) {
                const QString rest =
                    message(mode).mid(message(mode, point).size() + u"S: 250 ok\n"_s.size());
                QTest::addRow("%s: RSET is unknown", qUtf8Printable(nameOf(mode)))
                    << upTo + u"S: 502 what?\n"_s + rest +
                           u"S: 250 queued\nE< sent: 250 queued\nE< ready\n"_s + Goodbye
                    << 1;
                continue;
            }
            for (const QString &reply : {u"451 4.3.0 try later"_s, u"554 5.7.1 no"_s}) {
                QTest::addRow("%s: %s is refused, %s", qUtf8Printable(nameOf(mode)),
                              qUtf8Printable(nameOf(point)), qUtf8Printable(reply))
                    << upTo + u"S: "_s + reply + u'\n' + answersBehind(mode, point) +
                           u"E< refused: "_s + reply + u"\nE< ready\n"_s + Goodbye
                    << 1;
            }
        }
    }
}

void TestMishaps::refusal()
{
    cut();
}
