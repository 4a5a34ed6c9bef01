#include "TestRegFileStore.h"

#include "StoreCases.h"
#include "settings/IOReg.h"
#include "settings/RegFileStore.h"
#include "settings/Settings.h"
#include "support/FileSizeLimit.h"
#include "support/SecondProgram.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QTest>

#include <sys/stat.h>

#include <functional>
#include <stdexcept>
#include <thread>

namespace {

using namespace std::string_literals;

constexpr int WritesOfEach = 100;

/// Writes as many values of its own as the test expects, one by one.
void writeMany(const std::filesystem::path &file, const std::string &prefix)
{
    RegFileStore store(file);
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    for (int i = 0; i < WritesOfEach; ++i)
        reg.WriteInt(prefix + std::to_string(i), i);
}

/// How many of those values are there.
int countOfMany(const std::filesystem::path &file, const std::string &prefix)
{
    RegFileStore store(file);
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    int count = 0;
    for (int i = 0; i < WritesOfEach; ++i) {
        std::int32_t value = -1;
        if (reg.ReadInt(prefix + std::to_string(i), value) == 0 && value == i)
            ++count;
    }
    return count;
}

int waitForChange(const std::filesystem::path &file)
{
    RegFileStore store(file);
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    return reg.WaitForChange();
}

SecondProgram started(const char *part, const std::filesystem::path &file, const char *more = "")
{
    return SecondProgram({QString::fromLatin1(part), QString::fromStdString(file.string()),
                          QString::fromLatin1(more)});
}

} // namespace

bool TestRegFileStore::runAsSecondProgram(const QStringList &arguments)
{
    if (arguments.size() != 4)
        return false;
    const QString &part = arguments[1];
    const std::filesystem::path file = arguments[2].toStdString();
    int result = 0;
    if (part == u"write many")
        writeMany(file, arguments[3].toStdString());
    else if (part == u"wait")
        result = waitForChange(file);
    else
        return false;
    // The low byte of a status is all that a program can hand on.
    std::exit(result & 0xff);
}

void TestRegFileStore::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = std::filesystem::path(m_folder->path().toStdString()) / "config" / "settings.reg";
}

QByteArray TestRegFileStore::content() const
{
    QFile file(QString::fromStdString(m_file.string()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

void TestRegFileStore::setContent(const QByteArray &bytes) const
{
    std::filesystem::create_directories(m_file.parent_path());
    QSaveFile file(QString::fromStdString(m_file.string()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
    QVERIFY(file.commit());
}

void TestRegFileStore::everyStore_data()
{
    QTest::addColumn<qsizetype>("index");
    for (std::size_t i = 0; i < storeCases().size(); ++i)
        QTest::newRow(storeCases()[i].name) << static_cast<qsizetype>(i);
}

void TestRegFileStore::everyStore()
{
    QFETCH(qsizetype, index);
    RegFileStore store(m_file);
    try {
        runStoreCase(storeCases()[static_cast<std::size_t>(index)], store);
    } catch (const std::runtime_error &error) {
        QFAIL(error.what());
    }
}

void TestRegFileStore::defaultFileIsBelowTheConfigurationFolder()
{
    qputenv("XDG_CONFIG_HOME", "/somewhere/config");
    QCOMPARE(RegFileStore::defaultFile().string(), "/somewhere/config/Sorvanta/settings.reg"s);
}

void TestRegFileStore::relativeConfigurationFolderIsIgnored()
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/home/somebody");
    for (const char *folder : {"", "relative"}) {
        qputenv("XDG_CONFIG_HOME", folder);
        QCOMPARE(RegFileStore::defaultFile().string(),
                 "/home/somebody/.config/Sorvanta/settings.reg"s);
    }
    qputenv("HOME", home);
}

void TestRegFileStore::foldersOfTheFileAreMade()
{
    RegFileStore store(m_file);
    IOReg reg(store);
    QCOMPARE(reg.Init(CurrentUserRoot, Settings::Folder), std::int16_t{0});
    QCOMPARE(content(), QByteArray("REGEDIT4\r\n\r\n"
                                   "[HKEY_CURRENT_USER\\Software\\Calvessa\\Sorvanta]\r\n"));
}

void TestRegFileStore::newFileIsItsOwnersAlone()
{
    writeMany(m_file, "a");
    struct stat info = {};
    QCOMPARE(::stat(m_file.c_str(), &info), 0);
    QCOMPARE(info.st_mode & 0777, 0600U);
}

void TestRegFileStore::permissionsOfTheFileStay()
{
    setContent("");
    QCOMPARE(::chmod(m_file.c_str(), 0640), 0);
    writeMany(m_file, "a");
    struct stat info = {};
    QCOMPARE(::stat(m_file.c_str(), &info), 0);
    QCOMPARE(info.st_mode & 0777, 0640U);
}

void TestRegFileStore::symbolicLinksAreFollowed()
{
    setContent("; the file itself\r\n");
    const auto folder = m_file.parent_path().parent_path();
    create_symlink("config/settings.reg", folder / "first");
    create_symlink(folder / "first", folder / "second");
    RegFileStore store(folder / "second");
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    QCOMPARE(reg.WriteStr("Server", "mail.example"), std::int16_t{0});
    QVERIFY(is_symlink(folder / "first"));
    QVERIFY(is_symlink(folder / "second"));
    QVERIFY(content().startsWith("; the file itself\r\n"));
    QVERIFY(content().endsWith("\"Server\"=\"mail.example\"\r\n"));
}

void TestRegFileStore::danglingLinkMakesTheFileItNames()
{
    const auto link = m_file.parent_path().parent_path() / "link";
    create_symlink("config/settings.reg", link);
    RegFileStore store(link);
    IOReg reg(store);
    QCOMPARE(reg.Init(CurrentUserRoot, Settings::Folder), std::int16_t{0});
    QVERIFY(is_symlink(link));
    QVERIFY(content().startsWith("REGEDIT4"));
}

void TestRegFileStore::damagedLinesAreNeverLost()
{
    const QByteArray damaged =
        "\"Server\"=\"never closed\r\n\xff\xfe garbage\r\n[half a heading\r\n";
    setContent(damaged);
    writeMany(m_file, "a");
    QVERIFY(content().startsWith(damaged));
    QCOMPARE(countOfMany(m_file, "a"), WritesOfEach);
}

void TestRegFileStore::fileThatCannotBeReadIsNeverWrittenOver_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("status");
    QTest::newRow("a folder") << QStringLiteral("folder") << StoreCode::AccessDenied;
    QTest::newRow("a pipe") << QStringLiteral("pipe") << StoreCode::AccessDenied;
    QTest::newRow("UTF-16") << QStringLiteral("utf16") << StoreCode::Damaged;
    QTest::newRow("links in a circle") << QStringLiteral("circle") << StoreCode::InputOutputFailed;
}

void TestRegFileStore::fileThatCannotBeReadIsNeverWrittenOver()
{
    QFETCH(QString, kind);
    QFETCH(int, status);
    using std::filesystem::file_type;
    std::filesystem::create_directories(m_file.parent_path());
    if (kind == u"folder")
        std::filesystem::create_directory(m_file);
    else if (kind == u"pipe")
        QCOMPARE(::mkfifo(m_file.c_str(), 0600), 0);
    else if (kind == u"circle")
        create_symlink(m_file, m_file);
    else
        setContent(QByteArray("\xff\xfe[\0", 4));
    const file_type before = symlink_status(m_file).type();

    RegFileStore store(m_file);
    IOReg reg(store);
    QCOMPARE(int{reg.Init(CurrentUserRoot, Settings::Folder)}, status);
    std::string text = "before";
    QCOMPARE(int{reg.ReadStr("Server", text)}, StoreCode::InvalidHandle);
    QCOMPARE(text, ""s);
    QCOMPARE(int{reg.WriteStr("Server", "mail.example")}, StoreCode::InvalidHandle);
    QCOMPARE(symlink_status(m_file).type(), before);
    if (kind == u"utf16")
        QCOMPARE(content(), QByteArray("\xff\xfe[\0", 4));
}

void TestRegFileStore::fullDiskLeavesTheOldFile()
{
    setContent("; by hand\r\n");
    RegFileStore store(m_file);
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    reg.WriteStr("Server", "mail.example");
    reg.WriteInt("Language", 1);
    const QByteArray before = content();
    IOReg other(store);
    const std::vector<std::function<std::int16_t()>> changes{
        [&reg] { return reg.WriteStr("Server", "smtp.example"); },
        [&reg] { return reg.WriteStr("Mittente", "The Club"); },
        [&reg] { return reg.Delete("Language"); },
        [&other] { return other.Init(CurrentUserRoot, "Software\\Calvessa\\Other"); }};
    for (const auto &change : changes) {
        QCOMPARE(change(), std::int16_t{0});
        const QByteArray changed = content();
        setContent(before);
        forEachFullDisk(changed.size(), [&](rlim_t room) {
            const int status = [&] {
                const FileSizeLimit full(room);
                return change();
            }();
            QCOMPARE(status, StoreCode::InputOutputFailed);
            QCOMPARE(content(), before);
            int entries = 0;
            for ([[maybe_unused]] const auto &entry :
                 std::filesystem::directory_iterator(m_file.parent_path()))
                ++entries;
            QCOMPARE(entries, 2); // the file and its lock
        });
        QCOMPARE(change(), std::int16_t{0});
        QCOMPARE(content(), changed);
        setContent(before);
    }
}

void TestRegFileStore::restOfAChangeThatDiedIsNoHindrance()
{
    writeMany(m_file, "a");
    std::filesystem::path rest = m_file;
    rest += ".keys.new";
    std::filesystem::create_symlink("/dev/full", rest);
    RegFileStore store(m_file);
    IOReg reg(store);
    QCOMPARE(reg.Init(CurrentUserRoot, "Software\\Calvessa\\New"), std::int16_t{0});
    QVERIFY(!is_symlink(symlink_status(m_file)));
    QCOMPARE(countOfMany(m_file, "a"), WritesOfEach);
}

void TestRegFileStore::pathThatCannotBeAKeyIsRefused()
{
    RegFileStore store(m_file);
    IOReg reg(store);
    for (const auto &path : {"\\Software"s, "Software\\\\Calvessa"s, "Soft\nware"s})
        QCOMPARE(int{reg.Init(CurrentUserRoot, path)}, StoreCode::BadPath);
    QCOMPARE(int{reg.Init(CurrentUserRoot + 1, Settings::Folder)}, StoreCode::InvalidHandle);
    QCOMPARE(content(), QByteArray("(none)"));
}

void TestRegFileStore::nameWithControlCharactersIsRefused()
{
    RegFileStore store(m_file);
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    const QByteArray before = content();
    QCOMPARE(int{reg.WriteStr("two\r\nlines", "text")}, StoreCode::InvalidParameter);
    QCOMPARE(content(), before);
}

void TestRegFileStore::twoThreadsAtOnceLoseNothing()
{
    std::thread other([this] { writeMany(m_file, "other"); });
    writeMany(m_file, "this");
    other.join();
    QCOMPARE(countOfMany(m_file, "other"), WritesOfEach);
    QCOMPARE(countOfMany(m_file, "this"), WritesOfEach);
}

void TestRegFileStore::twoProgramsAtOnceLoseNothing()
{
    SecondProgram first = started("write many", m_file, "first");
    SecondProgram second = started("write many", m_file, "second");
    writeMany(m_file, "this");
    QCOMPARE(first.exitCode(), 0);
    QCOMPARE(second.exitCode(), 0);
    for (const char *prefix : {"first", "second", "this"})
        QCOMPARE(countOfMany(m_file, prefix), WritesOfEach);
}

void TestRegFileStore::readerNeverSeesHalfAFile()
{
    RegFileStore store(m_file);
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    const std::string longText(50000, 'x');
    reg.WriteStr("Long", longText);
    SecondProgram first = started("write many", m_file, "first");
    SecondProgram second = started("write many", m_file, "second");
    int torn = 0;
    while (!first.hasEnded() || !second.hasEnded()) {
        std::string text;
        if (reg.ReadStr("Long", text) != 0 || text != longText)
            ++torn;
    }
    QCOMPARE(torn, 0);
    QCOMPARE(first.exitCode(), 0);
    QCOMPARE(second.exitCode(), 0);
    for (const char *prefix : {"first", "second"})
        QCOMPARE(countOfMany(m_file, prefix), WritesOfEach);
}

void TestRegFileStore::changeByAnotherProgramEndsTheWait()
{
    RegFileStore store(m_file);
    IOReg reg(store);
    reg.Init(CurrentUserRoot, Settings::Folder);
    SecondProgram waiting = started("wait", m_file);
    while (!waiting.hasEnded())
        reg.WriteStr("Server", "the same each time");
    QCOMPARE(waiting.exitCode(), 0);
}

void TestRegFileStore::changeWithAnEditorEndsTheWait()
{
    writeMany(m_file, "a");
    const QByteArray before = content();
    SecondProgram waiting = started("wait", m_file);
    for (int i = 0; !waiting.hasEnded(); ++i)
        setContent(before + "\"Server\"=\"" + QByteArray::number(i) + "\"\n");
    QCOMPARE(waiting.exitCode(), 0);
}

void TestRegFileStore::removingTheKeyEndsTheWait()
{
    RegFileStore store(m_file);
    SettingsStore::Key key = 0;
    QCOMPARE(store.createKey(CurrentUserRoot, Settings::Folder, key), StoreCode::Success);
    std::int32_t code = -2;
    std::thread waiter([&] { code = store.waitForChange(key); });
    QCOMPARE(store.deleteKey(CurrentUserRoot, Settings::Folder), StoreCode::Success);
    waiter.join();
    QCOMPARE(code, StoreCode::KeyDeleted);
}
