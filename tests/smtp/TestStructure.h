#pragma once

#include "smtp/MimeReader.h"

#include <QObject>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

/// What spam filters look at in the structure of a message: each test is one of their rules, held
/// against messages of every kind.
class TestStructure : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void fieldsThatAMessageNeedsStandOnce();
    void contentFieldsStandOnceInEachPart();
    void headerLinesAreWellFormed();
    void linesAreNoLongerThan998Bytes();
    void noCrOrLfStandsAlone();
    void noByteIsBeyondAscii();
    void dateIsEnglishAndHasAZone();
    void messageIdHasTwoSidesInBrackets();
    void mimeVersionIsSpelledAsTheStandardSpellsIt();
    void asciiIsNotEncodedInHeaders();
    void asciiIsNotEncodedInTexts();
    void quotedPrintableIsCorrect();
    void base64LinesAreShort();
    void attachmentsAreMarkedAsSuch();
    void textsDeclareTheirCharset();
    void boundariesAreNotMereDigits();
    void receiptGoesToTheSender();
    void groupIsNotDisclosed();
    void textAndHtmlSayTheSame();

private:
    struct Kind
    {
        QString name;
        QByteArray bytes;
        QByteArray header; ///< of the whole message, with the end of its last line
        ReadPart message;
    };

    void add(const QString &name, struct MessageUnderTest &mail);
    QString file(const QString &name, const QByteArray &content);
    [[nodiscard]] QStringList
    kindsThat(const std::function<bool(const Kind &)> &breakTheRule) const;
    [[nodiscard]] QStringList
    partsThat(const std::function<bool(const ReadPart &)> &breakTheRule) const;

    QTemporaryDir m_folder;
    QList<Kind> m_kinds;
};
