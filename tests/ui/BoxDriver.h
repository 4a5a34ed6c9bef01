#pragma once

#include "WindowRig.h"
#include "support/DiskFiles.h"
#include "ui/WindowPrompts.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

/// A main window with the real boxes, wired as in the program, and what a user does to them.
class BoxRig : public WindowRigWith<WindowPrompts>
{
public:
    explicit BoxRig(Language language = Language::English) : WindowRigWith(language)
    {
        WindowPrompts &prompts = core->prompts;
        prompts.setDialogs(WindowPrompts::Dialogs::QtOwn);
        prompts.setWindow(window.get());
        const Form &form = core->w.form;
        QObject::connect(&form, &Form::situationChanged, &prompts, &WindowPrompts::closeStale,
                         Qt::QueuedConnection);
        QObject::connect(&form, &Form::runStateChanged, &prompts, &WindowPrompts::closeStale,
                         Qt::QueuedConnection);
    }

    /// The shown box of that name, or none.
    template <typename Box>
    [[nodiscard]] Box *shown(const char *name) const
    {
        for (Box *box : window->findChildren<Box *>(QLatin1String(name))) {
            if (box->isVisible())
                return box;
        }
        return nullptr;
    }
    [[nodiscard]] QMessageBox *notice() const { return shown<QMessageBox>("notice"); }
    [[nodiscard]] QMessageBox *question() const { return shown<QMessageBox>("question"); }
    [[nodiscard]] QInputDialog *inputBox() const { return shown<QInputDialog>("inputBox"); }
    [[nodiscard]] QFileDialog *fileDialog() const { return shown<QFileDialog>("fileDialog"); }
    /// The text of the notice; empty when there is none.
    [[nodiscard]] QString noticeText() const
    {
        return notice() == nullptr ? QString() : notice()->text();
    }

    void click(const char *button) { QTest::mouseClick(&get<QPushButton>(button), Qt::LeftButton); }
    /// A key for whatever has the focus in that box.
    static void key(const QDialog *box, Qt::Key key) { QTest::keyClick(box->windowHandle(), key); }
    void dismissNotice() const
    {
        QTRY_VERIFY(notice());
        QTest::mouseClick(notice()->button(QMessageBox::Ok), Qt::LeftButton);
    }
    void answer(QMessageBox::StandardButton button) const
    {
        QTRY_VERIFY(question());
        QTest::mouseClick(question()->button(button), Qt::LeftButton);
    }
    /// Types a text into the input box of that prompt.
    void enter(const QString &prompt, const QString &text) const
    {
        QTRY_VERIFY(inputBox() && inputBox()->labelText() == prompt);
        const QInputDialog *const box = inputBox();
        QTest::keyClicks(box->findChild<QLineEdit *>(), text);
        key(box, Qt::Key_Return);
    }
    void choose(const QString &path) const
    {
        QTRY_VERIFY(fileDialog());
        const QFileDialog *const dialog = fileDialog();
        dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
        key(dialog, Qt::Key_Return);
    }

    /// Start, the first tick, and the session ready: the first message is handed over.
    void startSending()
    {
        click("cmdAvvio");
        core->Timer.tick();
        core->smtp.raiseReady();
        QCOMPARE(core->w.form.runState(), RunState::Sending);
        QVERIFY(core->smtp.messageInFlight());
    }
};
