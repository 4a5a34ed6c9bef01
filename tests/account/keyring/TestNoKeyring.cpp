#include "TestNoKeyring.h"

#include "KeyringAnswers.h"
#include "support/DiskFiles.h"

#include <QDir>
#include <QDirIterator>

using namespace Qt::StringLiterals;

void TestNoKeyring::nothingIsFoundAndNothingIsKept()
{
    KeyringAnswers keyring;
    QVERIFY(!keyring.isAvailable());
    QVERIFY(keyring.write(u"smtp.example.org"_s, u"me"_s, u"secret"_s) != QString());
    QCOMPARE(keyring.read(u"smtp.example.org"_s, u"me"_s), u"nothing"_s);
    QVERIFY(keyring.remove(u"smtp.example.org"_s, u"me"_s) != QString());
}

void TestNoKeyring::nothingIsWrittenInAnotherPlace()
{
    KeyringAnswers keyring;
    QVERIFY(keyring.write(u"smtp.example.org"_s, u"me"_s, u"to-be-found"_s) != QString());
    QDirIterator files(qEnvironmentVariable("HOME"), QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QVERIFY2(!readFile(path).contains("to-be-found"), qPrintable(path));
    }
    QVERIFY(QDir(qEnvironmentVariable("XDG_CONFIG_HOME")).isEmpty());
}
