#pragma once

#include <QObject>

/// Reading message files.
class TestMessageReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneLineFileWithoutAnEndGetsOne();
    void everyLineEndBecomesCrLf_data();
    void everyLineEndBecomesCrLf();
    void emptyFileIsAnEmptyMessage();
    void readingIsLogged();
    void oldContentGoesFirst();
    void fileThatCannotBeReadShowsTheBox_data();
    void fileThatCannotBeReadShowsTheBox();
    void unreadableFileShowsTheBox();
    void boxIsItalianInItalian();

    void encodingOfText_data();
    void encodingOfText();
    void encodingOfHtml_data();
    void encodingOfHtml();
    void declarationThatTheLastByteBreaksIsNotKept();
    void declarationInATextFileIsText();
};
