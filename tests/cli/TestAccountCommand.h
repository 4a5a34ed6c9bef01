#pragma once

#include <QObject>

class TestAccountCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutANameAllIsListed();
    void oneValueIsRead();
    void aValueIsSetAndKept();
    void anEmptyValueRevokesTheCertificates();
    void anUnknownNameIsWrong();
    void aValueThatMakesNoSenseChangesNothing();
};
