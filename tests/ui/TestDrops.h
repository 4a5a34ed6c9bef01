#pragma once

#include "WindowTest.h"

class TestDrops : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void projectOnTheWindowIsOpened();
    void projectOnAListIsOpenedToo();
    void openingADroppedProjectAsksAboutChanges();
    void filesOnTheAttachmentsAreAttachedInOrder();
    void textFileOnTheRecipientsIsImported();
    void severalFilesOnTheRecipientsAreRefused();
    void foldersAndAddressesAreRefused();
    void dropsAreRefusedDuringARun();
};
