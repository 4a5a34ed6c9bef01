#include "TestOpenBook.h"

#include "addressbook/OpenBook.h"
#include "support/AsNobody.h"
#include "support/DiskFiles.h"
#include "support/FileSizeLimit.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Contact contactOf(const QString &name, const QString &address)
{
    Contact contact;
    contact[ContactColumn::DisplayName] = name;
    contact[ContactColumn::Name] = name;
    contact[ContactColumn::Email] = address;
    return contact;
}

struct BookRig
{
    explicit BookRig(const QByteArray &content)
    {
        writeFile(path, content);
        load();
    }
    BookRig() = default;

    void load() { QVERIFY(book.LoadBookFile(path)); }
    void save() { QCOMPARE(book.SaveBookFile().value_or(u"not saved"_s), QString()); }
    [[nodiscard]] QByteArray content() const { return readFile(path); }
    [[nodiscard]] QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const Contact &contact : book.contactTable())
            names.append(contact[ContactColumn::DisplayName]);
        return names;
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath(u"soci.rub"_s);
    const CodePage codePage{"windows-1252"};
    OpenBook book{codePage, folder.path()};
};

const QByteArray Ada = "Ada;ada@mill.example;Ada;;;;;;;;;;;\r\n";
const QByteArray Ben = "Ben;ben@mill.example;Ben;;;;;;;;;;;\r\n";
const QByteArray Cleo = "Cleo;cleo@mill.example;Cleo;;;;;;;;;;;\r\n";

} // namespace

void TestOpenBook::aBookIsReadAndWrittenBack()
{
    BookRig rig(Ada + Ben);
    QCOMPARE(rig.names(), (QStringList{u"Ada"_s, u"Ben"_s}));
    QVERIFY(rig.book.isWhole());
    rig.save();
    QCOMPARE(rig.content(), Ada + Ben);
}

void TestOpenBook::aRelativeNameLiesInTheProgramsFolder()
{
    BookRig rig(Ada);
    QVERIFY(rig.book.LoadBookFile(u"soci.rub"_s));
    QCOMPARE(rig.names(), QStringList{u"Ada"_s});
}

void TestOpenBook::aMissingBookIsEmptyAndMadeBySaving()
{
    BookRig rig;
    rig.load();
    QVERIFY(rig.book.contactTable().empty());
    QVERIFY(rig.book.isWhole());
    rig.save();
    QCOMPARE(rig.content(), QByteArray());
}

void TestOpenBook::aFolderIsNoBook()
{
    BookRig rig;
    QVERIFY(QDir(rig.folder.path()).mkdir(u"soci.rub"_s));
    const auto read = rig.book.LoadBookFile(rig.path);
    QVERIFY(!read);
    QCOMPARE(read.error().reason, u"it is a folder"_s);
    QVERIFY(!rig.book.isWhole());
    rig.save();
}

void TestOpenBook::anEmptyNameIsNoBook()
{
    BookRig rig;
    QVERIFY(!rig.book.LoadBookFile({}));
    QVERIFY(!rig.book.isWhole());
    rig.save();
    QCOMPARE(rig.files(), QStringList());
}

void TestOpenBook::aBookNotReadToItsEndIsNeverWritten()
{
    BookRig rig;
    const QByteArray content = Ada + "half a line\r\n" + Ben;
    writeFile(rig.path, content);
    const auto read = rig.book.LoadBookFile(rig.path);
    QVERIFY(!read);
    QCOMPARE(read.error().path, rig.path);
    QCOMPARE(read.error().reason, u"line 2 has no \";\""_s);
    QCOMPARE(rig.names(), QStringList{u"Ada"_s});
    QVERIFY(!rig.book.isWhole());
    rig.book.append(contactOf(u"Cleo"_s, u"cleo@mill.example"_s));
    rig.save();
    QCOMPARE(rig.content(), content);
    QCOMPARE(rig.files(), QStringList{u"soci.rub"_s});
}

void TestOpenBook::aBookThatCannotBeReadIsNeverWritten()
{
    BookRig rig;
    writeFile(rig.path, Ada);
    QVERIFY(QFile::setPermissions(rig.path, {}));
    QVERIFY(QFile::setPermissions(rig.folder.path(), QFile::ReadOwner | QFile::WriteOwner |
                                                         QFile::ExeOwner | QFile::ReadOther |
                                                         QFile::WriteOther | QFile::ExeOther));
    {
        const AsNobody nobody;
        QVERIFY(!rig.book.LoadBookFile(rig.path));
        QVERIFY(!rig.book.isWhole());
        rig.book.append(contactOf(u"Cleo"_s, u"cleo@mill.example"_s));
        rig.save();
    }
    QVERIFY(QFile::setPermissions(rig.path, QFile::ReadOwner | QFile::WriteOwner));
    QCOMPARE(rig.content(), Ada);
    QCOMPARE(rig.files(), QStringList{u"soci.rub"_s});
}

void TestOpenBook::contactsAreAddedReplacedAndRemoved()
{
    BookRig rig(Ada + Ben);
    rig.book.append(contactOf(u"Cleo"_s, u"cleo@mill.example"_s));
    rig.book.replace(2, contactOf(u"Bob"_s, u"bob@mill.example"_s));
    QCOMPARE(rig.names(), (QStringList{u"Ada"_s, u"Bob"_s, u"Cleo"_s}));
    rig.book.remove({1, 3});
    QCOMPARE(rig.names(), QStringList{u"Bob"_s});
    rig.save();
    QCOMPARE(rig.content(), "Bob;bob@mill.example;Bob;;;;;;;;;;;\r\n"_ba);
}

void TestOpenBook::aBookIsKeptWholeInUtf8WhenANameNeedsIt()
{
    BookRig rig("Zo\xEB;zoe@mill.example;Zo\xEB;;;;;;;;;;;\r\n");
    QCOMPARE(rig.names(), QStringList{u"Zoë"_s});
    rig.book.append(contactOf(u"Łukasz"_s, u"lukasz@mill.example"_s));
    rig.save();
    QCOMPARE(rig.content(), u"Zoë;zoe@mill.example;Zoë;;;;;;;;;;;\r\n"
                            "Łukasz;lukasz@mill.example;Łukasz;;;;;;;;;;;\r\n"_s.toUtf8());
    rig.load();
    QCOMPARE(rig.names(), (QStringList{u"Zoë"_s, u"Łukasz"_s}));
    rig.book.remove({2});
    rig.save();
    QCOMPARE(rig.content(), "Zo\xEB;zoe@mill.example;Zo\xEB;;;;;;;;;;;\r\n"_ba);
}

void TestOpenBook::aBookInUtf8IsRead()
{
    const BookRig rig(u"Zoë 東京;zoe@mill.example;"_s.toUtf8());
    QCOMPARE(rig.names(), QStringList{u"Zoë 東京"_s});
}

void TestOpenBook::aBookThatOnlyBeginsAsUtf8IsNeverWritten()
{
    BookRig rig;
    const QByteArray content = "\xEF\xBB\xBFZo\xEB;zoe@mill.example\r\n";
    writeFile(rig.path, content);
    const auto read = rig.book.LoadBookFile(rig.path);
    QVERIFY(!read);
    QCOMPARE(read.error().reason, u"it begins as UTF-8 and goes on otherwise"_s);
    QVERIFY(!rig.book.isWhole());
    rig.save();
    QCOMPARE(rig.content(), content);
}

void TestOpenBook::theSecondSaveWritesTheSameBytes()
{
    BookRig rig("A#b;a#b@c.example#x;A;b\\n\\rc;5;6;7;8;9;10;11;12;13;14\nB;b@c.example\n"_ba);
    rig.save();
    rig.load();
    rig.save();
    const QByteArray second = rig.content();
    rig.load();
    rig.save();
    QCOMPARE(rig.content(), second);
}

void TestOpenBook::aBookChangedByAnotherProgramIsNotOverwritten()
{
    BookRig rig(Ada);
    writeFile(rig.folder.filePath(u"soci (2).rub"_s), "taken;");
    rig.book.append(contactOf(u"Ben"_s, u"ben@mill.example"_s));
    writeFile(rig.path, Cleo);
    const auto beside = rig.book.SaveBookFile();
    QCOMPARE(beside.value_or(u"not saved"_s), rig.folder.filePath(u"soci (3).rub"_s));
    QCOMPARE(rig.content(), Cleo);
    QCOMPARE(readFile(*beside), Ada + Ben);
    // Saved is saved: there is nothing left to save.
    rig.save();
    QCOMPARE(rig.content(), Cleo);
    QCOMPARE(rig.files().size(), 3);
}

void TestOpenBook::anUnchangedBookLeavesTheChangesOfAnotherProgram()
{
    BookRig rig(Ada);
    writeFile(rig.path, Cleo);
    rig.save();
    QCOMPARE(rig.content(), Cleo);
    QCOMPARE(rig.files(), QStringList{u"soci.rub"_s});
}

void TestOpenBook::theSameChangeByAnotherProgramIsNoQuarrel()
{
    BookRig rig(Ada);
    rig.book.append(contactOf(u"Ben"_s, u"ben@mill.example"_s));
    writeFile(rig.path, Ada + Ben);
    rig.save();
    QCOMPARE(rig.content(), Ada + Ben);
    QCOMPARE(rig.files(), QStringList{u"soci.rub"_s});
}

void TestOpenBook::aBookDeletedByAnotherProgramIsSaved()
{
    BookRig rig(Ada);
    rig.book.append(contactOf(u"Ben"_s, u"ben@mill.example"_s));
    QVERIFY(QFile::remove(rig.path));
    rig.save();
    QCOMPARE(rig.content(), Ada + Ben);
}

void TestOpenBook::aFailedSaveLeavesTheOldFile()
{
    BookRig rig(Ada);
    rig.book.append(contactOf(u"Ben"_s, u"ben@mill.example"_s));
    forEachFullDisk((Ada + Ben).size(), [&](rlim_t room) {
        const auto saved = [&] {
            const FileSizeLimit full(room);
            return rig.book.SaveBookFile();
        }();
        QVERIFY(!saved);
        QCOMPARE(saved.error().path, rig.path);
        QVERIFY(!saved.error().reason.isEmpty());
        QCOMPARE(rig.content(), Ada);
        QCOMPARE(rig.files(), QStringList{u"soci.rub"_s});
    });
    rig.save();
    QCOMPARE(rig.content(), Ada + Ben);
}

void TestOpenBook::aBookThatNobodyChangedMayFailToBeWritten()
{
    BookRig rig("Ada;ada@mill.example\n"_ba);
    const FileSizeLimit full(5);
    rig.save();
    QCOMPARE(rig.content(), "Ada;ada@mill.example\n"_ba);
}
