#pragma once

#include <QObject>

/// TLS, from the first byte and by STARTTLS, and which certificates are accepted.
class TestEncryption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void dialogue_data();
    void dialogue();
    void certificate_data();
    void certificate();
    void certificateOfAnotherHostIsNotTrustedForThisOne();
    void fingerprints();
    void refusedCertificateIsReadableInsideTheErrorOnly();
    void startTlsIsRemembered();
    void messageCutOnAnEncryptedLine_data();
    void messageCutOnAnEncryptedLine();
    void plainOldTlsIsRefused();
};
