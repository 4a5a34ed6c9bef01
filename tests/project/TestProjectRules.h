#pragma once

#include <QObject>

/// The rules of the project's text, held against a second writing of them, for random projects and
/// random texts.
class TestProjectRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyProjectIsWrittenByTheRules();
    void anyTextIsReadByTheRules();
    void whatWasWrittenIsReadByTheRules();
    void textsWithNothingThatTheRulesKnowComeBackAsTheyWere();
    void anyFileIsTheTextThatWasWritten();
};
