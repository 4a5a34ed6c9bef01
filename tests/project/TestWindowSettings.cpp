#include "TestWindowSettings.h"

#include "settings/IOReg.h"
#include "settings/Settings.h"
#include "support/WorkspaceRig.h"

#include <QTest>

void TestWindowSettings::aFirstRunShowsEmptyBoxesAndTheDefaultEditors()
{
    WorkspaceRig rig;
    rig.w.windowSettings.LoadSettings();
    for (const Control box : {Control::txtServer, Control::txtMittente, Control::txtEmailMittente,
                              Control::txtControl, Control::txtNMsg, Control::txtPausa})
        QCOMPARE(rig.w.form.text(box), QString());
    QVERIFY(!rig.w.form.isChecked(Control::chkRicevuta));
    QVERIFY(!rig.w.form.isChecked(Control::chkMultiSend));
    QCOMPARE(rig.w.windowSettings.TXTEditorPath, QStringLiteral("notepad.exe"));
    QCOMPARE(rig.w.windowSettings.HTMLEditorPath,
             rig.folder.filePath(QStringLiteral("htmledit.exe")));
}

void TestWindowSettings::whatIsSavedIsLoaded()
{
    WorkspaceRig rig;
    rig.fillForm(0);
    rig.w.form.setText(Control::txtControl, QStringLiteral("me@example.org"));
    rig.w.form.setChecked(Control::chkMultiSend, true);
    rig.w.windowSettings.TXTEditorPath = QStringLiteral("/usr/bin/editor");
    rig.w.windowSettings.SaveSettings();
    rig.w.form.setText(Control::txtServer, {});
    rig.w.form.setText(Control::txtPausa, {});
    rig.w.form.setText(Control::txtControl, {});
    rig.w.form.setChecked(Control::chkMultiSend, false);
    rig.w.form.setChecked(Control::chkRicevuta, true);
    rig.w.windowSettings.TXTEditorPath.clear();
    rig.w.windowSettings.LoadSettings();
    QCOMPARE(rig.w.form.text(Control::txtServer), QStringLiteral("mail.example.org"));
    QCOMPARE(rig.w.form.text(Control::txtPausa), QStringLiteral("0"));
    QCOMPARE(rig.w.form.text(Control::txtControl), QStringLiteral("me@example.org"));
    QVERIFY(rig.w.form.isChecked(Control::chkMultiSend));
    QVERIFY(!rig.w.form.isChecked(Control::chkRicevuta));
    QCOMPARE(rig.w.windowSettings.TXTEditorPath, QStringLiteral("/usr/bin/editor"));
}

void TestWindowSettings::aMissingChoiceOfSeveralRecipientsTakesTheReceipts()
{
    WorkspaceRig rig;
    {
        IOReg reg(rig.store);
        reg.Init(CurrentUserRoot, Settings::Folder);
        reg.WriteInt(Settings::Ricevuta, 1);
    }
    rig.w.windowSettings.LoadSettings();
    QVERIFY(rig.w.form.isChecked(Control::chkRicevuta));
    QVERIFY(rig.w.form.isChecked(Control::chkMultiSend));
}

void TestWindowSettings::trailingBlanksAndAccentsStay()
{
    WorkspaceRig rig;
    for (const QString &name :
         {QStringLiteral("Società Più  "), QStringLiteral("Łódź"), QStringLiteral("Ã©")}) {
        rig.w.form.setText(Control::txtMittente, name);
        rig.w.windowSettings.SaveSettings();
        rig.w.form.setText(Control::txtMittente, {});
        rig.w.windowSettings.LoadSettings();
        QCOMPARE(rig.w.form.text(Control::txtMittente), name);
    }
}

// Each value is read by itself, and each line that is not set stays byte for byte.
void TestWindowSettings::aFileThatOnlyBeginsAsUtf8LosesNothing()
{
    WorkspaceRig rig;
    const QByteArray heading = QByteArray("[HKEY_CURRENT_USER\\") + Settings::Folder + "]\r\n";
    const QByteArray others = "\"Zo\xEB\"=\"\xE8\"\r\n; Zo\xEB\r\n";
    const QString path = rig.file(QStringLiteral("settings.reg"),
                                  "\xEF\xBB\xBF" + heading + "\"Mittente\"=\"Zo\xEB\"\r\n" +
                                      "\"Server\"=\"mail.citt\xC3\xA0.example\"\r\n" + others);
    rig.w.windowSettings.LoadSettings();
    QCOMPARE(rig.w.form.text(Control::txtMittente), QStringLiteral("Zoë"));
    QCOMPARE(rig.w.form.text(Control::txtServer), QStringLiteral("mail.città.example"));
    rig.w.windowSettings.SaveSettings();
    const QByteArray saved = WorkspaceRig::contentOf(path);
    QVERIFY(saved.startsWith("\xEF\xBB\xBF" + heading + "\"Mittente\"=\"Zo\xEB\"\r\n"));
    QVERIFY(saved.contains(others));
    rig.w.form.setText(Control::txtMittente, {});
    rig.w.windowSettings.LoadSettings();
    QCOMPARE(rig.w.form.text(Control::txtMittente), QStringLiteral("Zoë"));
    QCOMPARE(rig.w.form.text(Control::txtServer), QStringLiteral("mail.città.example"));
}
