#pragma once

#include "addressbook/AddressBooks.h"
#include "support/DiskFiles.h"
#include "support/ScriptedPrompts.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// The address books of a folder, with prompts that do what the test says.
struct BooksRig
{
    /// Further books, each with its name, and a file with that content whose name is the book's.
    explicit BooksRig(const QByteArray &standard = {},
                      const QList<std::pair<QString, QByteArray>> &others = {})
    {
        QByteArray index = "Standard\r\nrubrica.rub\r\n";
        writeFile(path(QStringLiteral("rubrica.rub")), standard);
        for (const auto &[name, content] : others) {
            const QString file = name + QStringLiteral(".rub");
            writeFile(path(file), content);
            index += (name + QStringLiteral("\r\n") + file + QStringLiteral("\r\n")).toLatin1();
        }
        writeFile(path(QStringLiteral("rubrica.ini")), index);
    }

    [[nodiscard]] QString path(const QString &file) const { return folder.filePath(file); }
    [[nodiscard]] QByteArray content(const QString &file) const { return readFile(path(file)); }
    [[nodiscard]] QByteArray index() const { return content(QStringLiteral("rubrica.ini")); }
    [[nodiscard]] QStringList bookNames() const
    {
        QStringList names;
        for (const AddressBook &book : books.books())
            names.append(book.name);
        return names;
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList names;
        for (const Contact &contact : books.contactTable())
            names.append(contact[ContactColumn::DisplayName]);
        return names;
    }
    [[nodiscard]] static Contact contact(const QString &name, const QString &address)
    {
        Contact contact;
        contact[ContactColumn::Name] = name;
        contact[ContactColumn::Email] = address;
        return contact;
    }
    /// The line that a contact of name and address alone is in a book's file.
    [[nodiscard]] static QByteArray line(const QByteArray &name, const QByteArray &address)
    {
        return name + ';' + address + ';' + name + ";;;;;;;;;;;\r\n";
    }
    /// The command for a new book, up to its end.
    void add(const QString &name, const QString &file)
    {
        prompts.expectText(namePrompt, name);
        if (!file.isNull())
            prompts.expectFile(QStringLiteral("New address book"), file);
        books.cmdAdd_Click();
        prompts.answerAll();
    }

    const QString namePrompt = QStringLiteral("Insert the name for the new address book:");
    const QTemporaryDir folder;
    const CodePage codePage{"windows-1252"};
    ScriptedPrompts prompts;
    AddressBooks books{prompts, codePage, folder.path()};
};
