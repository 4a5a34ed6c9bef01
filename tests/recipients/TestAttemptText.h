#pragma once

#include <QObject>

/// What is said about the last message to a row.
class TestAttemptText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatTheStateDoesNotSay_data();
    void whatTheStateDoesNotSay();
    void outcomeInWords_data();
    void outcomeInWords();
    void everythingIsSaidInItalian();
};
