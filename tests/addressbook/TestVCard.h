#pragma once

#include <QObject>

/// Cards as telephones, desktops and mail programs write them.
class TestVCard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cardOfATelephone();
    void cardOfADesktop();
    void cardOfAMailProgram();
    void cardOfTheLatestVersion();

    void fileBeginsAsAVCard_data();
    void fileBeginsAsAVCard();
    void cardsOfSeveralProgramsMayStandInOneFile();
    void namesAreReadInAnyCase();

    void nameIsTheFormattedOne_data();
    void nameIsTheFormattedOne();
    void companyIsTheFirstComponent();
    void cardOfACompanyHasNoName();
    void eachAddressIsReadOnce();
    void addressMayBeAnUri();
    void firstPostalAddressIsTaken();
    void preferredPostalAddressIsTaken_data();
    void preferredPostalAddressIsTaken();
    void streetHasTheExtendedAddressAndTheBox();
    void telephonesOfEachKind_data();
    void telephonesOfEachKind();
    void notesAreJoined();
    void whatHasNoColumnIsCounted_data();
    void whatHasNoColumnIsCounted();

    void cardsEnd_data();
    void cardsEnd();
    void cardOfAnAgentIsPassedOver();
    void cardWithoutAddressHasAnEmptyOne();
};
