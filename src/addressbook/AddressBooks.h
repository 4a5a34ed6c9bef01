#pragma once

#include "addressbook/BookIndex.h"
#include "addressbook/OpenBook.h"
#include "prompts/Prompts.h"

#include <QObject>

#include <functional>

/// What the address book window shows and does: the list of books, one of which is open, and the
/// contacts of that one. Changes of contacts reach the file when the book is left. A book that
/// could not be read or saved is told of in a line of the window, never in a box.
class AddressBooks : public QObject
{
    Q_OBJECT

public:
    AddressBooks(Prompts &prompts, const CodePage &codePage, const QString &programFolder,
                 QObject *parent = nullptr);

    /// Reads the index and opens its first book.
    void load();
    /// Writes the open book back. False when it could not be saved, and when something is to be
    /// read in the window first.
    [[nodiscard]] bool unload();
    /// The program ends: what cannot be saved where it belongs goes into the program's folder.
    void endSession();

    [[nodiscard]] const std::vector<AddressBook> &books() const { return m_books; }
    /// The place of the open book, from 0; -1 when there is none.
    [[nodiscard]] int selectedBook() const { return m_selected; }
    [[nodiscard]] const ContactTable &contactTable() const { return m_book.contactTable(); }
    /// Whether books can be added and removed: the index could be read.
    [[nodiscard]] bool canChangeBooks() const { return m_indexIsWhole; }
    /// Whether contacts can be added, edited and deleted: the open book was read to its end.
    [[nodiscard]] bool canChangeContacts() const { return m_selected >= 0 && m_book.isWhole(); }
    /// What went wrong with a file; empty when nothing did.
    [[nodiscard]] QString line() const { return m_line; }
    /// Whether the open book has changes that could not be saved. It is not left with them.
    [[nodiscard]] bool isUnsaved() const { return m_isUnsaved; }

    /// A click on the book at that place, from 0; one on the open book saves it and reads it again.
    void Rubriche_Click(int place);
    /// Gives up what could not be saved: the open book is read again.
    void cmdDiscard_Click();
    void cmdAdd_Click();
    void cmdRemove_Click();
    /// A new contact from the editor: the display name is made here.
    void cmdNew_Confirmed(const Contact &contact);
    /// The edited contact of that row, counted from 1.
    void cmdEdit_Confirmed(int row, const Contact &contact);
    /// Asks before it deletes these rows, ascending.
    void cmdDelete_Click(const std::vector<int> &rows);
    /// Asks for a file of another program and adds its contacts.
    void mnuImport_Click();

Q_SIGNALS:
    void booksChanged();
    void contactsAboutToChange();
    void contactsChanged();
    /// The contact of that row, counted from 1, came from the editor.
    void contactKept(int row);
    void lineChanged();

private:
    bool LoadRubricheList();
    [[nodiscard]] bool leave();
    void open(int place);
    void change(const std::function<void()> &contacts);
    void refuse(const QString &text, const FileError &error);
    void say(const QString &text);
    void clearLine();

    void askFileOf(const QString &name);
    [[nodiscard]] bool isTaken(const std::function<bool(const AddressBook &book)> &by) const;
    void addBook(const AddressBook &book);
    void removeSelected();
    void import(const QString &path);
    [[nodiscard]] Stands whileOpen() const;

    Prompts &m_prompts;
    const CodePage &m_codePage;
    QString m_programFolder;
    BookIndex m_index;
    std::vector<AddressBook> m_books;
    bool m_indexIsWhole = false;
    int m_selected = -1;
    OpenBook m_book;
    bool m_isUnsaved = false;
    QString m_line;
};
