#include "TestDigitsEdit.h"

#include "ui/DigitsEdit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QTest>

using namespace Qt::StringLiterals;

void TestDigitsEdit::digitsCanBeTyped()
{
    DigitsEdit edit;
    QTest::keyClicks(&edit, u"1205"_s);
    QCOMPARE(edit.text(), u"1205"_s);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QCOMPARE(edit.text(), u"120"_s);
}

void TestDigitsEdit::aTypedLetterIsRefused_data()
{
    QTest::addColumn<QString>("typed");
    for (const char *typed : {"a", "Z", "-", " ", ".", "+"})
        QTest::addRow("%s", typed) << QString::fromLatin1(typed);
}

void TestDigitsEdit::aTypedLetterIsRefused()
{
    QFETCH(QString, typed);
    DigitsEdit edit;
    edit.setText(u"1"_s);
    QTest::keyClicks(&edit, typed);
    QCOMPARE(edit.text(), u"1"_s);
}

void TestDigitsEdit::pastingIsNotFiltered()
{
    QGuiApplication::clipboard()->setText(u"-3 a"_s);
    DigitsEdit edit;
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(edit.text(), u"-3 a"_s);
}

void TestDigitsEdit::textOfAnInputMethodIsTyped()
{
    DigitsEdit edit;
    for (const QString &committed : {u"7"_s, u"七"_s}) {
        QInputMethodEvent event;
        event.setCommitString(committed);
        QCoreApplication::sendEvent(&edit, &event);
    }
    QCOMPARE(edit.text(), u"7"_s);
}
