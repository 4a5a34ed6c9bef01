#include "TestBookIndex.h"

#include "addressbook/BookIndex.h"
#include "support/DiskFiles.h"
#include "support/ItalianTexts.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct IndexRig
{
    [[nodiscard]] QString path() const { return folder.filePath(u"rubrica.ini"_s); }
    void write(const QByteArray &content) const { writeFile(path(), content); }
    [[nodiscard]] QByteArray content() const { return readFile(path()); }
    [[nodiscard]] std::vector<AddressBook> books() const
    {
        const auto read = index.LoadRubricheList();
        if (!read)
            QTest::qFail("the index cannot be read", __FILE__, __LINE__);
        return read.value_or(std::vector<AddressBook>());
    }
    void append(const QString &name, const QString &file) const
    {
        QVERIFY(index.append({name, file}));
    }

    const QTemporaryDir folder;
    const CodePage codePage{"windows-1252"};
    const BookIndex index{codePage, folder.path()};
};

using Books = std::vector<AddressBook>;

} // namespace

void TestBookIndex::twoLinesAreABook()
{
    const IndexRig rig;
    rig.write("Standard\r\nrubrica.rub\r\nSoci\r\nC:\\club\\soci.rub\r\n");
    QVERIFY(rig.books() ==
            (Books{{u"Standard"_s, u"rubrica.rub"_s}, {u"Soci"_s, u"C:\\club\\soci.rub"_s}}));
}

void TestBookIndex::anOddLastLineIsABookWithoutAFile()
{
    const IndexRig rig;
    rig.write("Standard\r\nrubrica.rub\r\nSoci\r\n");
    QVERIFY(rig.books() == (Books{{u"Standard"_s, u"rubrica.rub"_s}, {u"Soci"_s, QString()}}));
}

void TestBookIndex::anEmptyIndexHasNoBooks()
{
    const IndexRig rig;
    rig.write("");
    QVERIFY(rig.books().empty());
    QCOMPARE(rig.content(), QByteArray());
}

void TestBookIndex::booksOfOneNameAreAllThere()
{
    const IndexRig rig;
    rig.write("Soci\r\na.rub\r\nSoci\r\nb.rub\r\n");
    QVERIFY(rig.books() == (Books{{u"Soci"_s, u"a.rub"_s}, {u"Soci"_s, u"b.rub"_s}}));
}

void TestBookIndex::aMissingIndexIsMadeWithAStandardBook_data()
{
    QTest::addColumn<bool>("italian");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("English") << false << "Standard\r\nrubrica.rub\r\n"_ba;
    QTest::newRow("Italian") << true << "Principale\r\nrubrica.rub\r\n"_ba;
}

void TestBookIndex::aMissingIndexIsMadeWithAStandardBook()
{
    QFETCH(const bool, italian);
    std::optional<ItalianTexts> texts;
    if (italian)
        texts.emplace();
    const IndexRig rig;
    QCOMPARE(rig.books().size(), std::size_t{1});
    QTEST(rig.content(), "content");
    QCOMPARE(readFile(rig.folder.filePath(u"rubrica.rub"_s)), QByteArray());
}

void TestBookIndex::aStandardBookThatIsThereStaysWhatItIs()
{
    const IndexRig rig;
    writeFile(rig.folder.filePath(u"rubrica.rub"_s), "A;a@b.example;\r\n");
    QCOMPARE(rig.books().size(), std::size_t{1});
    QCOMPARE(readFile(rig.folder.filePath(u"rubrica.rub"_s)), "A;a@b.example;\r\n"_ba);
}

void TestBookIndex::anIndexThatCannotBeReadStays()
{
    const IndexRig rig;
    QVERIFY(QDir(rig.folder.path()).mkdir(u"rubrica.ini"_s));
    const auto read = rig.index.LoadRubricheList();
    QVERIFY(!read);
    QCOMPARE(read.error().path, rig.path());
    QCOMPARE(read.error().reason, u"it is a folder"_s);
    QVERIFY(QFileInfo(rig.path()).isDir());
    QVERIFY(!QFileInfo::exists(rig.folder.filePath(u"rubrica.rub"_s)));
}

void TestBookIndex::anIndexThatOnlyBeginsAsUtf8Stays()
{
    const IndexRig rig;
    const QByteArray content = "\xEF\xBB\xBFZo\xEB\r\nzoe.rub\r\n";
    rig.write(content);
    QVERIFY(!rig.index.LoadRubricheList());
    QVERIFY(!rig.index.append({u"Soci"_s, u"soci.rub"_s}));
    QCOMPARE(rig.content(), content);
}

void TestBookIndex::aFileWhoseNameHasALineEndIsNoBook()
{
    const IndexRig rig;
    rig.write("Standard\r\nrubrica.rub\r\n");
    const auto added = rig.index.append({u"Soci"_s, rig.folder.filePath(u"so\nci.rub"_s)});
    QVERIFY(!added);
    QCOMPARE(added.error().reason, u"its name has a line end"_s);
    QCOMPARE(rig.content(), "Standard\r\nrubrica.rub\r\n"_ba);
    QVERIFY(!QFile::exists(rig.folder.filePath(u"so\nci.rub"_s)));
}

void TestBookIndex::savingReplacesTheList()
{
    const IndexRig rig;
    rig.write("Standard\r\nrubrica.rub\r\nSoci\r\nsoci.rub\r\n");
    QVERIFY(rig.index.SaveRubricheList({{u"Caffè"_s, u"/home/anna/caffè.rub"_s}}));
    QCOMPARE(rig.content(), "Caff\xE8\r\n/home/anna/caff\xE8.rub\r\n"_ba);
}

void TestBookIndex::anotherBookLeavesTheBytesBeforeIt()
{
    const IndexRig rig;
    rig.write("Standard\nrubrica.rub\n");
    rig.append(u"Caffè"_s, u"caffè.rub"_s);
    QCOMPARE(rig.content(), "Standard\nrubrica.rub\nCaff\xE8\r\ncaff\xE8.rub\r\n"_ba);
}

void TestBookIndex::anotherBookAfterAnUnfinishedLine()
{
    const IndexRig rig;
    rig.write("Standard\r\nrubrica.rub");
    rig.append(u"Soci"_s, u"soci.rub"_s);
    QCOMPARE(rig.content(), "Standard\r\nrubrica.rub\r\nSoci\r\nsoci.rub\r\n"_ba);
}

void TestBookIndex::anotherBookAfterABookWithoutAFile_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::newRow("whole line") << "Standard\r\nrubrica.rub\r\nOld\r\n"_ba;
    QTest::newRow("unfinished line") << "Standard\r\nrubrica.rub\r\nOld"_ba;
}

// Else the new name would become the file of the book before it.
void TestBookIndex::anotherBookAfterABookWithoutAFile()
{
    QFETCH(const QByteArray, before);
    const IndexRig rig;
    rig.write(before);
    rig.append(u"Soci"_s, u"soci.rub"_s);
    QVERIFY(rig.books() == (Books{{u"Standard"_s, u"rubrica.rub"_s},
                                  {u"Old"_s, QString()},
                                  {u"Soci"_s, u"soci.rub"_s}}));
}

void TestBookIndex::namesBeyondTheCodePageAreKept()
{
    const IndexRig rig;
    rig.write("Caff\xE8\r\nrubrica.rub\r\n");
    rig.append(u"Łódź"_s, u"łódź.rub"_s);
    const Books all{{u"Caffè"_s, u"rubrica.rub"_s}, {u"Łódź"_s, u"łódź.rub"_s}};
    QVERIFY(rig.books() == all);
    QCOMPARE(rig.content(), u"Caffè\r\nrubrica.rub\r\nŁódź\r\nłódź.rub\r\n"_s.toUtf8());
    rig.append(u"Perù"_s, u"perù.rub"_s);
    QCOMPARE(rig.books().size(), std::size_t{3});
    QVERIFY(rig.books()[2] == (AddressBook{u"Perù"_s, u"perù.rub"_s}));
    QVERIFY(rig.index.SaveRubricheList(all));
    QVERIFY(rig.books() == all);
}

void TestBookIndex::namesAreReadInTheCodePageAndInUtf8()
{
    const IndexRig rig;
    rig.write("Caff\xE8\r\nrubrica.rub\r\n");
    QCOMPARE(rig.books()[0].name, u"Caffè"_s);
    rig.write("Caff\xC3\xA8\r\nrubrica.rub\r\n");
    QCOMPARE(rig.books()[0].name, u"Caffè"_s);
}

void TestBookIndex::nothingIsAddedToAnIndexThatCannotBeRead()
{
    const IndexRig rig;
    QVERIFY(QDir(rig.folder.path()).mkdir(u"rubrica.ini"_s));
    const auto added = rig.index.append({u"Soci"_s, u"soci.rub"_s});
    QVERIFY(!added);
    QCOMPARE(added.error().path, rig.path());
}
