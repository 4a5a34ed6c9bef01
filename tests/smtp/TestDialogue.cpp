#include "smtp/TestDialogue.h"

#include "smtp/Dialogue.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString ChunkingServer = uR"(
E: Connect
C: <connects>
S: 220 ready
C: EHLO [127.0.0.1]
S: 250-server.example greets you
S: 250-PIPELINING
S: 250-CHUNKING
S: 250 SIZE 100000
E< ready
)"_s;

} // namespace

void TestDialogue::dialogue_data()
{
    QTest::addColumn<QString>("script");

    QTest::newRow("one message, CHUNKING") << ChunkingServer + uR"(
E: Send
C: RSET
C: MAIL FROM:<sender@example.org> SIZE=<size>
C: RCPT TO:<anna@example.net>
C: BDAT <size> LAST
C: <message>
S: 250 2.0.0 flushed
S: 250 2.1.0 sender ok
S: 250 2.1.5 recipient ok
S: 250 2.0.0 queued
E< sent: 250 2.0.0 queued
E< ready
E: Disconnect
C: QUIT
S: 221 bye
C: <closes>
)"_s;
}

void TestDialogue::dialogue()
{
    QFETCH(QString, script);
    Dialogue dialogue;
    QCOMPARE(dialogue.play(script), QString());
}
