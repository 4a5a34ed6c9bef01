#pragma once

#include <QObject>

/// The words for what became of a row.
class TestStateWords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsOfBothLanguages_data();
    void wordsOfBothLanguages();
    void otherWordsSayNothing();
    void wordsDoNotFollowTheCatalogue();
};
