#pragma once

#include <QObject>

class TestEditorCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newEditWithAFileSetOpensItWithoutAskingOrMarking();
    void withoutAFileANewOneIsCreatedAndOpened();
    void cancellingStartsNoEditor();
    void cancellingForgetsTheFileOfAnEmptiedBox();
    void pathWithBlanksReachesTheEditorInPieces();
    void editorMayHaveBlanksAndArguments();
    void longestExistingProgramIsTheEditor();
    void absentDefaultEditorLetsTheDesktopOpenTheFile_data();
    void absentDefaultEditorLetsTheDesktopOpenTheFile();
    void absentEditorIsReported();
    void editorThatDoesNotStartIsReported();
    void emptyEditorsBecomeTheDefaults();
    void filtersForNewFilesAreItalianInBothLanguages_data();
    void filtersForNewFilesAreItalianInBothLanguages();
};
