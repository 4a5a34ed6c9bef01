#pragma once

#include <QObject>

/// Passwords in a real keyring.
class TestKeyring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keyringIsThere();
    void whatIsWrittenIsRead();
    void hostIsTheSameInWhateverCase();
    void anotherUserOrHostHasNoPassword();
    void laterPasswordTakesThePlaceOfTheEarlier();
    void whatIsRemovedIsGone();
    void removingWhatIsNotThereIsNoFailure();
    void answersOfAKeyringThatIsGoneDoNotCome();
};
