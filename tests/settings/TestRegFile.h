#pragma once

#include <QObject>

/// The text format of the settings file, in memory.
class TestRegFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newFileIsWrittenAsTheRegistryEditorWritesIt();
    void fileWrittenByHandIsRead();
    void backslashThatEscapesNothingIsItself();
    void linesThatSayNothingAreKeptAsTheyStand();
    void valuesUnderAnUnreadableHeadingBelongToNoKey();
    void valueIsReplacedWhereItStands();
    void newValueFollowsTheOthersOfItsKey();
    void lastOfTwoLinesForTheSameValueHolds();
    void deletedValueDoesNotComeBackFromAnEarlierLine();
    void lineEndsStayAsTheyAre();
    void lastLineWithoutAnEndIsEndedBeforeALineFollows();
    void byteOrderMarkIsKeptAndPassedOver();
    void utf16IsRefused();
    void removedKeyTakesItsSectionsAndNoOthers();
    void anyTextReadsBack();
    void anyBytesAreAFile();
};
