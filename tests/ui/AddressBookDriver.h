#pragma once

#include "WindowRig.h"
#include "support/DiskFiles.h"
#include "ui/frmContatto.h"
#include "ui/frmRubrica.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

/// A main window whose program folder holds address books, and what a user does with them.
template <typename Rig>
class AddressBookDriver : public Rig
{
public:
    explicit AddressBookDriver(Language language = Language::English) : Rig(language) {}

    [[nodiscard]] QString path(const char *file) const
    {
        return this->core->folder.filePath(QLatin1String(file));
    }
    void write(const char *file, const QByteArray &content) const
    {
        writeFile(path(file), content);
    }
    [[nodiscard]] QByteArray content(const char *file) const { return readFile(path(file)); }
    /// Books of these names; the file of each is its name in small letters.
    void writeIndex(const QByteArrayList &names) const
    {
        QByteArray index;
        for (const QByteArray &name : names)
            index += name + "\r\n" + name.toLower() + ".rub\r\n";
        write("rubrica.ini", index);
    }

    /// The shown dialog of that kind, or none.
    template <typename Dialog>
    [[nodiscard]] Dialog *dialog() const
    {
        for (Dialog *found : this->window->template findChildren<Dialog *>()) {
            if (found->isVisible())
                return found;
        }
        return nullptr;
    }
    [[nodiscard]] frmRubrica *book() const { return dialog<frmRubrica>(); }
    [[nodiscard]] frmContatto *editor() const { return dialog<frmContatto>(); }
    /// Opens the address book from the menu of a shown main window.
    void openBook()
    {
        this->show();
        this->template get<QAction>("mnuRubrica").trigger();
        QVERIFY(book());
        // The platform without a screen leaves it to the test.
        book()->activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), book());
    }

    template <typename Widget>
    [[nodiscard]] static Widget &part(const QDialog *dialog, const char *name)
    {
        auto *const found = dialog->findChild<Widget *>(QLatin1String(name));
        if (!found)
            qFatal("the dialog has no %s of that kind", name);
        return *found;
    }
    static void press(const QDialog *dialog, const char *button)
    {
        QTest::mouseClick(&part<QPushButton>(dialog, button), Qt::LeftButton);
    }
    [[nodiscard]] QTreeWidget &bookList() const { return part<QTreeWidget>(book(), "Rubriche"); }
    [[nodiscard]] QTreeView &contactList() const { return part<QTreeView>(book(), "Elenco"); }
    [[nodiscard]] QString line() const
    {
        const QLabel &label = part<QLabel>(book(), "lblLine");
        return label.isVisible() ? label.text() : QString();
    }
    [[nodiscard]] QString count() const { return part<QLabel>(book(), "lblCount").text(); }
    /// One column of the contacts that are shown.
    [[nodiscard]] QStringList shown(int column = 0, int role = Qt::DisplayRole) const
    {
        QStringList texts;
        const QAbstractItemModel &model = *contactList().model();
        for (int row = 0; row < model.rowCount(); ++row)
            texts.append(model.index(row, column).data(role).toString());
        return texts;
    }
    [[nodiscard]] QStringList keys() const { return shown(0, Qt::UserRole); }

    void clickBook(int place) const
    {
        const QRect item = bookList().visualItemRect(bookList().topLevelItem(place));
        QTest::mouseClick(bookList().viewport(), Qt::LeftButton, {}, item.center());
        QCoreApplication::processEvents();
    }
    /// Clicks the contact at that place; with Ctrl it is added to the selection.
    void clickContact(int place, Qt::KeyboardModifiers modifiers = {}) const
    {
        const QRect item = contactList().visualRect(contactList().model()->index(place, 0));
        QTest::mouseClick(contactList().viewport(), Qt::LeftButton, modifiers, item.center());
    }
    void doubleClickContact(int place) const
    {
        clickContact(place);
        const QRect item = contactList().visualRect(contactList().model()->index(place, 0));
        QTest::mouseDClick(contactList().viewport(), Qt::LeftButton, {}, item.center());
    }
    /// An entry of the context menu of the contacts.
    [[nodiscard]] QAction &entry(const QString &text) const
    {
        for (QAction *action : contactList().actions()) {
            if (action->text() == text)
                return *action;
        }
        qFatal("there is no such entry");
    }

    /// Types into a box of the editor, in the place of what stands there.
    void type(const char *box, const QString &text) const
    {
        auto &edit = part<QLineEdit>(editor(), box);
        edit.selectAll();
        edit.insert(text);
    }
    void enter(const QString &name, const QString &address) const
    {
        type("txtName", name);
        type("txtEmail", address);
        press(editor(), "cmdOK");
    }
};

using AddressBookRig = AddressBookDriver<WindowRig>;
