#pragma once

#include <QObject>

/// The encoding of the program's files.
class TestCodePage : public QObject
{
    Q_OBJECT

public:
    /// Prints the system's code page when the arguments ask for it.
    static bool runAsSecondProgram(int argc, char **argv);

private Q_SLOTS:
    void eachByteReadsAndWritesBack_data();
    void eachByteReadsAndWritesBack();
    void charactersOfThePage_data();
    void charactersOfThePage();
    void asciiIsTheSameInEveryPage_data();
    void asciiIsTheSameInEveryPage();
    void textBeyondThePageIsUtf8();
    void textWhoseBytesWouldReadAsUtf8IsUtf8();
    void byteOrderMarkIsDropped();
    void textThatBeginsWithTheMarkKeepsIt();
    void oneInvalidSequenceMakesItTheCodePage();
    void emptyTextIsNoBytes();
    void unknownNameGivesWindows1252();
    void whatWasWrittenReadsBackAsTheSameText_data();
    void whatWasWrittenReadsBackAsTheSameText();
    void bytesInThePageAreWrittenBackAsTheyWere_data();
    void bytesInThePageAreWrittenBackAsTheyWere();
    void pageOfTheSystemFollowsTheLocale_data();
    void pageOfTheSystemFollowsTheLocale();

private:
    static void allPages();
};
