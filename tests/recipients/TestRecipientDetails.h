#pragma once

#include <QObject>

class TestRecipientDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingThatIsKnownIsSaid();
    void whatIsNotKnownIsLeftOut();
    void whatBecameOfAnEarlierMessageIsSaid();
    void theQueueIdIsNamedOnlyWhenTheServerNamedIt();
    void itSpeaksItalian();
};
