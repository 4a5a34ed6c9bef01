#pragma once

#include "base/CodePage.h"
#include "support/FakeTime.h"

#include <QObject>
#include <QTemporaryDir>

#include <memory>

/// The activity log and its file.
class TestLog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void firstRunInAMonthMakesANewFile();
    void secondRunInTheSameMonthBeginsOnTheLastByte();
    void lastByteIsOverwrittenWhateverItIs();
    void orderlyEndIsWritten();
    void lineIsDateTimeAndText();
    void stampFollowsTheClock();
    void textWithLineEndsIsWrittenAsItIs();
    void runOverTheEndOfAMonthStaysInItsFile();
    void eachMonthHasItsFile();
    void everyLineIsInTheFileAtOnce();
    void textBeyondTheCodePageIsUtf8InItsLine();
    void wholeLogIsReadAfterWhatWasThere();
    void eachLineReadsBackAsItWasWritten();
    void readingLeavesTheEndWhereItWas();
    void emptyFileLeavesTheTextUnchanged();
    void logThatCannotBeOpenedSwallowsEverything_data();
    void logThatCannotBeOpenedSwallowsEverything();
    void logThatMayNotBeWrittenSwallowsEverything();
    void lineThatFindsNoRoomLeavesTheLogAsItWas();
    void sessionThatFoundNoRoomBeginsWithTheFirstLineThatDoes_data();
    void sessionThatFoundNoRoomBeginsWithTheFirstLineThatDoes();
    void logWithoutAFileLeavesNoTrace();

private:
    [[nodiscard]] QString path(const QString &name = QStringLiteral("11-2026.log")) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FakeClock> m_clock;
    const FakeFormats m_formats{};
    const CodePage m_codePage{"windows-1252"};
};
