#include "TestPreview.h"

#include "support/DiskFiles.h"
#include "ui/HtmlView.h"
#include "ui/frmPreview.h"

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A preview window over two files.
class PreviewRig
{
public:
    QTemporaryDir folder;
    CodePage codePage{"windows-1252"};
    PreviewSource source{folder.filePath(u"letter.txt"_s), folder.filePath(u"letter.html"_s), true,
                         true};
    frmPreview window{codePage};

    PreviewRig() { writeFiles("Dear *NOME*,", "<p>Dear <b>*NOME*</b>,"); }

    void writeFiles(const QByteArray &text, const QByteArray &html) const
    {
        writeFile(source.textPath, text);
        writeFile(source.htmlPath, html);
    }
    void open(const QStringList &names = {})
    {
        window.Init(source, names);
        window.show();
    }
    // What stands in the pane; nothing of the panes that are not seen.
    [[nodiscard]] QString text() const
    {
        const auto *plain = window.findChild<QPlainTextEdit *>();
        return plain->isVisible() ? plain->toPlainText() : QString();
    }
    [[nodiscard]] QString html() const
    {
        const auto *view = window.findChild<HtmlView *>();
        return view->isVisible() ? view->plainText() : QString();
    }
    [[nodiscard]] QString notice() const
    {
        const auto *label = find<QLabel>("lblNotice");
        return label->isVisible() ? label->text() : QString();
    }
    template <typename Control>
    [[nodiscard]] Control *find(const char *name) const
    {
        return window.findChild<Control *>(QString::fromLatin1(name));
    }
};

} // namespace

void TestPreview::optionsFollowTheBoxes_data()
{
    QTest::addColumn<bool>("textIsShown");
    QTest::addColumn<bool>("htmlIsShown");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("notice");
    const QString text = u"Dear *NOME*,"_s;
    QTest::newRow("both") << true << true << u"Format: HTML"_s << QString() << text << QString();
    QTest::newRow("text") << true << false << u"Format: plain text"_s << text << QString()
                          << QString();
    QTest::newRow("HTML") << false << true << u"Format: HTML"_s << QString() << text << QString();
    QTest::newRow("none") << false << false << u"Format: plain text"_s << QString() << QString()
                          << u"No message has been chosen yet."_s;
}

void TestPreview::optionsFollowTheBoxes()
{
    QFETCH(const bool, textIsShown);
    QFETCH(const bool, htmlIsShown);
    PreviewRig rig;
    rig.source.textIsShown = textIsShown;
    rig.source.htmlIsShown = htmlIsShown;
    rig.open();
    QCOMPARE(rig.find<QRadioButton>("Option1")->isEnabled(), textIsShown);
    QCOMPARE(rig.find<QRadioButton>("Option2")->isEnabled(), htmlIsShown);
    QCOMPARE(rig.find<QRadioButton>("Option2")->isChecked(), htmlIsShown);
    QTEST(rig.find<QLabel>("Label1")->text(), "format");
    QTEST(rig.text(), "text");
    QTEST(rig.html(), "html");
    QTEST(rig.notice(), "notice");
}

void TestPreview::captionsAreThere()
{
    const PreviewRig rig;
    QCOMPARE(rig.window.windowTitle(), u"Preview"_s);
    QCOMPARE(rig.find<QLabel>("Label1")->text(), u"Format:"_s);
    QCOMPARE(rig.find<QRadioButton>("Option1")->text(), u"Text"_s);
    QCOMPARE(rig.find<QRadioButton>("Option2")->text(), u"HTML"_s);
    QCOMPARE(rig.find<QPushButton>("cmdChiudi")->text(), u"Close"_s);
    QVERIFY(!rig.window.isModal());
}

void TestPreview::optionChangesTheFormat()
{
    PreviewRig rig;
    rig.writeFiles("the text", "the <i>HTML</i>");
    rig.open();
    rig.find<QRadioButton>("Option1")->click();
    QCOMPARE(rig.find<QLabel>("Label1")->text(), u"Format: plain text"_s);
    QCOMPARE(rig.text(), u"the text"_s);
    rig.find<QRadioButton>("Option2")->click();
    QCOMPARE(rig.find<QLabel>("Label1")->text(), u"Format: HTML"_s);
    QCOMPARE(rig.html(), u"the HTML"_s);
}

void TestPreview::filesAreReadAsForAMessage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("code page") << QByteArray("perch\xE9");
    QTest::newRow("UTF-8") << QByteArray("perch\xC3\xA9");
    QTest::newRow("UTF-8 with its mark") << QByteArray("\xEF\xBB\xBFperch\xC3\xA9");
}

void TestPreview::filesAreReadAsForAMessage()
{
    QFETCH(const QByteArray, bytes);
    PreviewRig rig;
    rig.writeFiles(bytes, bytes);
    rig.open();
    QCOMPARE(rig.html(), u"perché"_s);
    rig.find<QRadioButton>("Option1")->click();
    QCOMPARE(rig.text(), u"perché"_s);
    // The HTML's own word comes first.
    rig.writeFiles({}, "<meta charset=iso-8859-5>\xD0\xD1");
    rig.find<QRadioButton>("Option2")->click();
    QCOMPARE(rig.html(), u"аб"_s);
}

void TestPreview::pictureBesideTheFileIsShown()
{
    PreviewRig rig;
    QImage red(40, 30, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(rig.folder.filePath(u"red.png"_s)));
    rig.writeFiles({}, "<body style='margin:0'><img src='red.png'>");
    rig.open();
    const QImage seen = rig.window.findChild<HtmlView *>()->viewport()->grab().toImage();
    QCOMPARE(seen.pixel(39, 29), qRgb(255, 0, 0));
}

void TestPreview::recipientsNameIsPutIn_data()
{
    QTest::addColumn<bool>("isHtml");
    QTest::newRow("text") << false;
    QTest::newRow("HTML") << true;
}

void TestPreview::recipientsNameIsPutIn()
{
    QFETCH(const bool, isHtml);
    PreviewRig rig;
    rig.open({u"Zoë"_s, u"Anna & Bert"_s});
    rig.find<QRadioButton>(isHtml ? "Option2" : "Option1")->click();
    const auto shown = [&] { return isHtml ? rig.html() : rig.text(); };
    auto *names = rig.find<QComboBox>("cboNome");
    QCOMPARE(names->currentText(), u"As written"_s);
    QCOMPARE(shown(), u"Dear *NOME*,"_s);
    names->setCurrentIndex(1);
    QCOMPARE(shown(), u"Dear Zoë,"_s);
    names->setCurrentIndex(2);
    QCOMPARE(shown(), u"Dear Anna & Bert,"_s);
    names->setCurrentIndex(0);
    QCOMPARE(shown(), u"Dear *NOME*,"_s);
}

void TestPreview::nameGoesIntoTheHtmlAsItIs()
{
    PreviewRig rig;
    rig.open({u"<br>Anna"_s});
    rig.find<QComboBox>("cboNome")->setCurrentIndex(1);
    QCOMPARE(rig.html(), u"Dear\nAnna,"_s);
    rig.find<QRadioButton>("Option1")->click();
    QCOMPARE(rig.text(), u"Dear <br>Anna,"_s);
}

void TestPreview::placeStaysInSightWhenTheRecipientChanges()
{
    PreviewRig rig;
    rig.writeFiles(QByteArray("line\n").repeated(300), QByteArray("<p>line").repeated(300));
    rig.open({u"Anna"_s});
    auto *htmlBar = rig.window.findChild<HtmlView *>()->verticalScrollBar();
    htmlBar->setValue(200);
    rig.find<QComboBox>("cboNome")->setCurrentIndex(1);
    QCOMPARE(htmlBar->value(), 200);
    rig.find<QRadioButton>("Option1")->click();
    auto *textBar = rig.window.findChild<QPlainTextEdit *>()->verticalScrollBar();
    textBar->setValue(20);
    rig.find<QComboBox>("cboNome")->setCurrentIndex(0);
    QCOMPARE(textBar->value(), 20);
}

void TestPreview::recipientIsFoundByTyping()
{
    PreviewRig rig;
    rig.open({u"Anna"_s, u"Bert"_s, u"Zoë"_s});
    auto *names = rig.find<QComboBox>("cboNome");
    QVERIFY(!names->isEditable());
    QTest::keyClick(names, Qt::Key_Z);
    QCOMPARE(names->currentText(), u"Zoë"_s);
    QCOMPARE(rig.html(), u"Dear Zoë,"_s);
}

void TestPreview::listMayHoldEveryRecipient()
{
    constexpr int MaxRecipients = 32'767;
    QStringList names;
    for (int i = 1; i <= MaxRecipients; ++i)
        names += u"Recipient %1"_s.arg(i);
    PreviewRig rig;
    rig.open(names);
    auto *box = rig.find<QComboBox>("cboNome");
    QCOMPARE(box->count(), MaxRecipients + 1);
    box->setCurrentIndex(MaxRecipients);
    QCOMPARE(rig.html(), u"Dear Recipient 32767,"_s);
    box->showPopup();
    QVERIFY(rig.window.width() < 1366);
    box->hidePopup();
}

void TestPreview::fileThatCannotBeReadIsNamed()
{
    PreviewRig rig;
    QVERIFY(QFile::remove(rig.source.htmlPath));
    rig.open();
    QVERIFY(
        rig.notice().startsWith(u"This file cannot be read:\n"_s + rig.source.htmlPath + u'\n'));
    QVERIFY(!rig.notice().section(u'\n', 2).isEmpty());
    rig.find<QComboBox>("cboNome")->setCurrentIndex(0);
    rig.find<QRadioButton>("Option1")->click();
    QCOMPARE(rig.notice(), QString());
    QCOMPARE(rig.text(), u"Dear *NOME*,"_s);
}

void TestPreview::changedFileIsReadAgain_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by F5") << true;
    QTest::newRow("when it is shown again") << false;
}

void TestPreview::changedFileIsReadAgain()
{
    QFETCH(const bool, byKey);
    PreviewRig rig;
    rig.open({u"Anna"_s});
    rig.find<QComboBox>("cboNome")->setCurrentIndex(1);
    rig.writeFiles({}, "<p>Hello *NOME*");
    if (byKey) {
        QTest::keyClick(rig.window.findChild<HtmlView *>(), Qt::Key_F5);
    } else {
        rig.window.hide();
        rig.window.show();
    }
    QCOMPARE(rig.html(), u"Hello Anna"_s);
}

void TestPreview::windowIsHidden_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("Escape") << true;
    QTest::newRow("Close") << false;
}

void TestPreview::windowIsHidden()
{
    QFETCH(const bool, byKey);
    PreviewRig rig;
    rig.open();
    if (byKey)
        QTest::keyClick(rig.window.findChild<HtmlView *>(), Qt::Key_Escape);
    else
        rig.find<QPushButton>("cmdChiudi")->click();
    QVERIFY(!rig.window.isVisible());
}

void TestPreview::otherFilesReplaceTheFirst()
{
    PreviewRig rig;
    rig.writeFiles({}, QByteArray("<p>line").repeated(300));
    rig.open({u"Anna"_s});
    rig.find<QComboBox>("cboNome")->setCurrentIndex(1);
    auto *view = rig.window.findChild<HtmlView *>();
    view->verticalScrollBar()->setValue(200);
    rig.writeFiles({}, QByteArray("<p>*NOME*").repeated(300));
    rig.open({u"Bert"_s});
    QCOMPARE(view->verticalScrollBar()->value(), 0);
    QVERIFY(rig.html().startsWith(u"*NOME*"_s));
}
