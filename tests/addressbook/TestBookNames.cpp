#include "TestBookNames.h"

#include "addressbook/BookNames.h"
#include "support/DiskFiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

void TestBookNames::charactersThatFileNamesMustNotHaveAreLeftOut()
{
    QCOMPARE(MakeFileName(u"Soci: chi?"_s), u"Soci chi"_s);
    QCOMPARE(MakeFileName(u"a\\b/c:d*e?f\"g<h>i|j"_s), u"abcdefghij"_s);
    QCOMPARE(MakeFileName(u"Però; già #1 'x'"_s), u"Però; già #1 'x'"_s);
    QCOMPARE(MakeFileName(u"?"_s), QString());
}

void TestBookNames::aNameThatIsTakenGetsANumber()
{
    const QTemporaryDir folder;
    QCOMPARE(freePath(folder.path(), u"Soci"_s, u".rub"_s), folder.filePath(u"Soci.rub"_s));
    writeFile(folder.filePath(u"Soci.rub"_s), {});
    QCOMPARE(freePath(folder.path(), u"Soci"_s, u".rub"_s), folder.filePath(u"Soci (2).rub"_s));
    writeFile(folder.filePath(u"Soci (2).rub"_s), {});
    QCOMPARE(freePath(folder.path(), u"Soci"_s, u".rub"_s), folder.filePath(u"Soci (3).rub"_s));
}

void TestBookNames::namesAreTakenByFoldersToo()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"Soci.rub"_s));
    QCOMPARE(freePath(folder.path(), u"Soci"_s, u".rub"_s), folder.filePath(u"Soci (2).rub"_s));
}
