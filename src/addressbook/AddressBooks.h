#pragma once

#include "addressbook/BookIndex.h"
#include "addressbook/OpenBook.h"
#include "prompts/Prompts.h"

#include <QObject>

/// What the address book window shows and does: the list of books, one of which is open, and the
/// contacts of that one. Changes of contacts reach the file when the book is left. What could not
/// be read or saved is said in a line of the window, never in a box.
class AddressBooks : public QObject
{
    Q_OBJECT

public:
    AddressBooks(Prompts &prompts, const CodePage &codePage, const QString &programFolder,
                 QObject *parent = nullptr);

    /// Reads the index and opens its first book.
    void load();
    /// Writes the open book back. False when something is to be read in the window first; asked
    /// once more it goes on, also without what could not be saved.
    [[nodiscard]] bool unload();

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

    /// A click on the book at that place, from 0; one on the open book saves it and reads it again.
    void Rubriche_Click(int place);
    void cmdAdd_Click();
    void cmdRemove_Click();
    /// A new contact from the editor: the display name is made here.
    void cmdNew_Confirmed(Contact contact);
    /// The edited contact of that row, counted from 1.
    void cmdEdit_Confirmed(int row, Contact contact);
    /// Asks before it deletes these rows, ascending.
    void cmdDelete_Click(const std::vector<int> &rows);
    /// Asks for a file of another program and adds its contacts.
    void mnuImport_Click();

Q_SIGNALS:
    void booksChanged();
    void contactsChanged();
    /// The contact of that row, counted from 1, is new.
    void contactAdded(int row);
    void lineChanged();

private:
    bool LoadRubricheList();
    [[nodiscard]] bool leave();
    void open(int place);
    void say(const QString &text);
    void clearLine();

    void askFileOf(const QString &name);
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
    bool m_lossIsAnnounced = false; ///< the user knows that the open book cannot be saved
    QString m_line;
};
