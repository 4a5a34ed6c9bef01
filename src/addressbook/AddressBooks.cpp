#include "addressbook/AddressBooks.h"

#include "addressbook/BookNames.h"
#include "addressbook/ContactImport.h"
#include "base/modMain.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace {

Notice notice(Icon icon, const QString &text)
{
    return {icon, QStringLiteral("Sorvanta"), text};
}

} // namespace

AddressBooks::AddressBooks(Prompts &prompts, const CodePage &codePage, const QString &programFolder,
                           QObject *parent)
    : QObject(parent),
      m_prompts(prompts),
      m_codePage(codePage),
      m_programFolder(programFolder),
      m_index(codePage, programFolder),
      m_book(codePage, programFolder)
{}

void AddressBooks::load()
{
    clearLine();
    if (LoadRubricheList() && !m_books.empty())
        open(0);
}

bool AddressBooks::unload()
{
    clearLine();
    const bool mayClose = leave();
    if (mayClose && m_line.isEmpty())
        return true;
    // What was saved beside the book is not in it: the window goes on with what is.
    if (mayClose)
        open(m_selected);
    return false;
}

bool AddressBooks::LoadRubricheList()
{
    auto books = m_index.LoadRubricheList();
    m_indexIsWhole = books.has_value();
    m_books = m_indexIsWhole ? *std::move(books) : std::vector<AddressBook>();
    m_selected = -1;
    m_book.close();
    if (!m_indexIsWhole)
        say(BookIndex::troubleOf(books.error()));
    Q_EMIT booksChanged();
    Q_EMIT contactsChanged();
    return m_indexIsWhole;
}

// A book that cannot be saved is left only by who has read what that means.
bool AddressBooks::leave()
{
    if (m_selected < 0)
        return true;
    const auto beside = m_book.SaveBookFile();
    if (!beside) {
        if (m_lossIsAnnounced)
            return true;
        m_lossIsAnnounced = true;
        say(tr("The contacts could not be saved: %1. If you leave the book all the same, what you "
               "have changed is lost.")
                .arg(beside.error().toText()));
        return false;
    }
    if (!beside->isEmpty()) {
        say(tr("Another program has changed this book meanwhile. Your contacts were saved as %1.")
                .arg(*beside));
    }
    return true;
}

void AddressBooks::open(int place)
{
    m_selected = place;
    m_lossIsAnnounced = false;
    const QString currentBookFile = m_books[static_cast<std::size_t>(place)].file;
    if (const auto read = m_book.LoadBookFile(currentBookFile); !read) {
        say(tr("The book could not be read to its end and cannot be changed: %1")
                .arg(read.error().toText()));
    }
    Q_EMIT booksChanged();
    Q_EMIT contactsChanged();
}

void AddressBooks::say(const QString &text)
{
    m_line += m_line.isEmpty() ? text : u' ' + text;
    Q_EMIT lineChanged();
}

void AddressBooks::clearLine()
{
    m_line.clear();
    Q_EMIT lineChanged();
}

Stands AddressBooks::whileOpen() const
{
    return [self = QPointer(this)] { return !self.isNull(); };
}

void AddressBooks::Rubriche_Click(int place)
{
    clearLine();
    if (leave())
        open(place);
    else
        Q_EMIT booksChanged(); // the selection goes back to the open one
}

void AddressBooks::cmdAdd_Click()
{
    const InputBox box{QStringLiteral("Sorvanta"), tr("Insert the name for the new address book:")};
    m_prompts.askText(box, whileOpen(), [this](const QString &name) {
        if (name.isEmpty())
            return;
        const bool isTaken =
            std::any_of(m_books.begin(), m_books.end(),
                        [&](const AddressBook &book) { return book.name == name; });
        if (isTaken)
            m_prompts.notice(notice(Icon::Critical, tr("The specified name is already in use.")));
        else
            askFileOf(name);
    });
}

void AddressBooks::askFileOf(const QString &name)
{
    const QString suffix = QStringLiteral(".rub");
    FileDialog dialog;
    dialog.kind = FileDialog::Kind::Save;
    dialog.title = tr("New address book");
    dialog.filter = tr("Address Book (*.rub)|*.rub");
    dialog.defaultExtension = QStringLiteral("rub");
    dialog.initialFolder = m_programFolder;
    dialog.initialName = fileNameOf(freePath(m_programFolder, MakeFileName(name), suffix));
    m_prompts.askFile(dialog, whileOpen(), [this, name](const QString &file) {
        if (file.isEmpty())
            return;
        const bool isTaken =
            std::any_of(m_books.begin(), m_books.end(),
                        [&](const AddressBook &book) { return book.file == file; });
        if (isTaken)
            m_prompts.notice(notice(Icon::Critical, tr("The specified file is already in use.")));
        else
            addBook({name, file});
    });
}

void AddressBooks::addBook(const AddressBook &book)
{
    clearLine();
    if (!leave())
        return;
    const QString path = ResolveProgramPath(book.file, m_programFolder);
    const bool isThere = QFileInfo::exists(systemPath(path));
    // A file that is there is kept: its contacts become the new book's.
    auto added = isThere ? tl::expected<void, FileError>() : replaceWholeFile(path, {});
    if (added)
        added = m_index.append(book);
    if (!added) {
        say(tr("The address book could not be added: %1").arg(added.error().toText()));
        return;
    }
    if (!LoadRubricheList())
        return;
    const auto place = std::find(m_books.begin(), m_books.end(), book);
    if (place != m_books.end())
        open(static_cast<int>(place - m_books.begin()));
}

void AddressBooks::cmdRemove_Click()
{
    if (m_selected < 0)
        return;
    if (m_selected == 0) {
        m_prompts.notice(notice(Icon::Critical, tr("The standard address book can't be deleted.")));
        return;
    }
    Question question;
    question.topic = Topic::DeleteBook;
    question.buttons = Buttons::OkCancel;
    question.title = QStringLiteral("Sorvanta");
    question.text = tr("Are you sure to delete the selected address book? All the contacts will be "
                       "deleted! Do you want to continue?");
    m_prompts.ask(question, whileOpen(), [this](Answer answer) {
        if (answer == Answer::Ok)
            removeSelected();
    });
}

// The book's own file stays where it is, whatever the question said: that is intended.
void AddressBooks::removeSelected()
{
    const AddressBook removed = m_books[static_cast<std::size_t>(m_selected)];
    clearLine();
    if (!leave())
        return;
    // Another program may have added books since the list was read.
    if (!LoadRubricheList() || m_books.empty())
        return;
    std::vector<AddressBook> left = m_books;
    const auto place = std::find(left.begin() + 1, left.end(), removed);
    if (place != left.end())
        left.erase(place);
    if (const auto saved = m_index.SaveRubricheList(left); saved)
        m_books = std::move(left);
    else
        say(tr("The address book could not be removed: %1").arg(saved.error().toText()));
    open(0);
}

void AddressBooks::cmdNew_Confirmed(Contact contact)
{
    contact[ContactColumn::DisplayName] =
        DisplayName(contact[ContactColumn::Name], contact[ContactColumn::Company]);
    m_book.append(contact);
    m_lossIsAnnounced = false;
    Q_EMIT contactsChanged();
    Q_EMIT contactAdded(static_cast<int>(contactTable().size()));
}

void AddressBooks::cmdEdit_Confirmed(int row, Contact contact)
{
    contact[ContactColumn::DisplayName] =
        DisplayName(contact[ContactColumn::Name], contact[ContactColumn::Company]);
    m_book.replace(row, contact);
    m_lossIsAnnounced = false;
    Q_EMIT contactsChanged();
}

void AddressBooks::cmdDelete_Click(const std::vector<int> &rows)
{
    if (rows.empty())
        return;
    Question question;
    question.topic = Topic::DeleteContacts;
    question.buttons = Buttons::OkCancel;
    question.title = QStringLiteral("Sorvanta");
    // The Italian text has no "*N*" and says no number; that is intended.
    question.text = tr("Are you sure to delete *N* selected contact(s)?")
                        .replace(QLatin1String("*N*"), QString::number(rows.size()));
    m_prompts.ask(question, whileOpen(), [this, rows](Answer answer) {
        if (answer != Answer::Ok)
            return;
        m_book.remove(rows);
        m_lossIsAnnounced = false;
        Q_EMIT contactsChanged();
    });
}

void AddressBooks::mnuImport_Click()
{
    FileDialog dialog;
    dialog.title = tr("Import contacts");
    dialog.filter = tr("Contacts (*.vcf; *.csv; *.txt; *.rub)|*.vcf; *.csv; *.txt; *.rub|"
                       "All files (*.*)|*.*");
    m_prompts.askFile(dialog, whileOpen(), [this](const QString &path) {
        if (!path.isEmpty())
            import(path);
    });
}

void AddressBooks::import(const QString &path)
{
    const auto content = readWholeFile(path);
    if (!content) {
        m_prompts.notice(notice(
            Icon::Critical, tr("The contacts cannot be read: %1").arg(content.error().toText())));
        return;
    }
    const ImportedContacts imported = importContacts(*content, m_codePage);
    for (const Contact &contact : imported.contacts)
        m_book.append(contact);
    if (!imported.contacts.empty()) {
        m_lossIsAnnounced = false;
        Q_EMIT contactsChanged();
    }
    QString text = tr("Contacts imported: %1").arg(imported.contacts.size());
    if (imported.fieldsLeftOut > 0) {
        text += u'\n' + tr("Fields left out because the address book has no place for them: %1")
                            .arg(imported.fieldsLeftOut);
    }
    if (!imported.leftOut.isEmpty()) {
        text += u'\n' + tr("These contacts have no valid e-mail address and were left out:") +
                u'\n' + imported.leftOut.join(u'\n');
    }
    m_prompts.notice(notice(Icon::Information, text));
}
