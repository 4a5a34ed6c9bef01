#include "TestTwoPrograms.h"

#include "support/DiskFiles.h"
#include "support/SecondProgram.h"
#include "support/WorkspaceRig.h"

#include <QTest>

#include <string_view>

namespace {

constexpr std::string_view SaveMany = "--save-many";
constexpr int SavesOfEach = 100;
constexpr int Few = 2;
constexpr int Many = 200;

/// The same project in every program, but for the number of its recipients.
void fill(WorkspaceRig &rig, int recipients)
{
    rig.fillForm(recipients);
    rig.w.form.setTag(Control::txtEmail, QStringLiteral("/message.txt"));
}

bool save(WorkspaceRig &rig, const QString &path)
{
    bool isSaved = false;
    rig.w.projectFile.SaveProject(path, [&isSaved](bool saved) { isSaved = saved; });
    return isSaved;
}

bool saveMany(const QString &path, int recipients)
{
    WorkspaceRig rig;
    fill(rig, recipients);
    bool allSaved = true;
    for (int i = 0; i < SavesOfEach; ++i)
        allSaved = save(rig, path) && allSaved;
    return allSaved;
}

SecondProgram savingMany(const QString &path, int recipients)
{
    return SecondProgram(
        {QString::fromLatin1(SaveMany.data(), SaveMany.size()), path, QString::number(recipients)});
}

} // namespace

bool TestTwoPrograms::runAsSecondProgram(int argc, char **argv)
{
    if (argc != 4 || argv[1] != SaveMany)
        return false;
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    std::exit(saveMany(arguments[2], arguments[3].toInt()) ? 0 : 1);
}

void TestTwoPrograms::aFileThatTwoSaveAtOnceIsAlwaysThatOfOne()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("mailing.svk"));
    QByteArrayList contents;
    for (const int recipients : {Few, Many}) {
        WorkspaceRig rig;
        fill(rig, recipients);
        QVERIFY(save(rig, path));
        contents.append(readFile(path));
    }
    SecondProgram first = savingMany(path, Few);
    SecondProgram second = savingMany(path, Many);
    WorkspaceRig reader;
    do {
        QVERIFY(contents.contains(readFile(path)));
        QCOMPARE(reader.w.projectFile.LoadProject(path), LoadOutcome::Loaded);
        const int recipients = reader.w.recipients.count();
        QVERIFY(recipients == Few || recipients == Many);
    } while (!first.hasEnded() || !second.hasEnded());
    QCOMPARE(first.exitCode(), 0);
    QCOMPARE(second.exitCode(), 0);
    QVERIFY(contents.contains(readFile(path)));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden),
             QStringList{QStringLiteral("mailing.svk")});
}
