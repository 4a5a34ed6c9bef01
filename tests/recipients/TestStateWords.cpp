#include "TestStateWords.h"

#include "recipients/Recipient.h"
#include "support/ItalianTexts.h"

#include <QTest>

using namespace Qt::StringLiterals;

void TestStateWords::wordsOfBothLanguages_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("italian");
    const auto row = [](RowState state, const QString &english, const QString &italian) {
        QTest::newRow(qPrintable(english)) << static_cast<int>(state) << english << italian;
    };
    row(RowState::Waiting, u"Waiting"_s, u"Attesa"_s);
    row(RowState::Sending, u"Sending..."_s, u"Invio..."_s);
    row(RowState::Sent, u"Sent"_s, u"Inviato"_s);
    row(RowState::NotSent, u"Not sent"_s, u"Non inviato"_s);
    row(RowState::Error, u"Error!"_s, u"Errore!"_s);
}

void TestStateWords::wordsOfBothLanguages()
{
    QFETCH(const int, state);
    QFETCH(const QString, english);
    QFETCH(const QString, italian);
    const auto rowState = static_cast<RowState>(state);
    QCOMPARE(stateWord(rowState, Language::English), english);
    QCOMPARE(stateWord(rowState, Language::Italian), italian);
    QCOMPARE(stateOfWord(english), rowState);
    QCOMPARE(stateOfWord(italian), rowState);
}

void TestStateWords::otherWordsSayNothing()
{
    for (const QString &word : {u""_s, u"waiting"_s, u"Sent "_s, u"Envoyé"_s})
        QVERIFY(!stateOfWord(word));
}

void TestStateWords::wordsDoNotFollowTheCatalogue()
{
    const ItalianTexts italian;
    QCOMPARE(stateWord(RowState::Waiting, Language::English), u"Waiting"_s);
}
