#pragma once

#include <QObject>

/// What the command line says about a certificate that was refused.
class TestCertificateAdvice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void adviceEndsWithTheCommandThatTrustsIt();
    void certificatesThatAreTrustedStayTrusted();
    void textsOfStrangersNeitherForgeLinesNorReachTheShell();
};
