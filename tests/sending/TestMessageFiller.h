#pragma once

#include <QObject>

class TestMessageFiller : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSingleMessageHasOneAddressAndItsName();
    void aGroupOfOneIsAList();
    void identifiersNeverRepeatAcrossClients();
    void whatAMessageDoesNotNeedIsNotWritten();
    void attachmentsComeInTheirOrder();
};
