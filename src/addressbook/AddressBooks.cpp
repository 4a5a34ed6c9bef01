#include "addressbook/AddressBooks.h"

#include "addressbook/BookNames.h"
#include "addressbook/ContactImport.h"
#include "base/modMain.h"

#include <QPointer>

#include <algorithm>

namespace {

Notice notice(Icon icon, const QString &text, const QString &detail = {})
{
    return {icon, QStringLiteral("Sorvanta"), text, detail};
}

Question question(Topic topic, const QString &text)
{
    return {topic, Icon::Exclamation, Buttons::OkCancel, QStringLiteral("Sorvanta"), text};
}

Contact withDisplayName(Contact contact)
{
    contact[ContactColumn::DisplayName] =
        DisplayName(contact[ContactColumn::Name], contact[ContactColumn::Company]);
    return contact;
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

void AddressBooks::endSession()
{
    if (!leave())
        m_book.saveInto(m_programFolder);
}

bool AddressBooks::LoadRubricheList()
{
    const auto books = m_index.LoadRubricheList();
    m_indexIsWhole = books.has_value();
    m_books = books.value_or(std::vector<AddressBook>());
    m_selected = -1;
    change([this] { m_book.close(); });
    if (!m_indexIsWhole)
        say(BookIndex::troubleOf(books.error()));
    Q_EMIT booksChanged();
    return m_indexIsWhole;
}

// Whoever holds a key down must not lose contacts: a book that cannot be saved is not left before
// its changes are given up.
bool AddressBooks::leave()
{
    m_isUnsaved = false;
    if (m_selected < 0)
        return true;
    const auto beside = m_book.SaveBookFile();
    m_isUnsaved = !beside;
    if (m_isUnsaved) {
        say(tr("The contacts could not be saved: %1").arg(beside.error().toText()));
    } else if (!beside->isEmpty()) {
        say(tr("This book was changed by another program meanwhile, or cannot be read any more. "
               "Your contacts were saved as %1.")
                .arg(*beside));
    }
    return !m_isUnsaved;
}

void AddressBooks::open(int place)
{
    m_selected = place;
    m_isUnsaved = false;
    const QString currentBookFile = m_books[static_cast<std::size_t>(place)].file;
    tl::expected<void, FileError> read;
    change([&] { read = m_book.LoadBookFile(currentBookFile); });
    if (!read) {
        say(tr("The book could not be read to its end and cannot be changed: %1")
                .arg(read.error().toText()));
    }
    Q_EMIT booksChanged();
}

void AddressBooks::change(const std::function<void()> &contacts)
{
    Q_EMIT contactsAboutToChange();
    contacts();
    Q_EMIT contactsChanged();
}

void AddressBooks::refuse(const QString &text, const FileError &error)
{
    m_prompts.notice(notice(Icon::Critical, text, error.toText()));
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

void AddressBooks::cmdDiscard_Click()
{
    clearLine();
    if (m_isUnsaved)
        open(m_selected);
}

// Another program may have added books since the list was read.
bool AddressBooks::isTaken(const std::function<bool(const AddressBook &)> &by) const
{
    const std::vector<AddressBook> books = m_index.LoadRubricheList().value_or(m_books);
    return std::any_of(books.begin(), books.end(), by);
}

void AddressBooks::cmdAdd_Click()
{
    const InputBox box{QStringLiteral("Sorvanta"), tr("Insert the name for the new address book:")};
    m_prompts.askText(box, whileOpen(), [this](const QString &name) {
        if (name.isEmpty())
            return;
        if (isTaken([&](const AddressBook &book) { return book.name == name; }))
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
        if (isTaken([&](const AddressBook &book) { return book.file == file; }))
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
    if (const auto added = m_index.append(book); !added) {
        refuse(tr("The address book could not be added."), added.error());
        return;
    }
    if (!LoadRubricheList())
        return;
    const auto place = std::find(m_books.rbegin(), m_books.rend(), book);
    if (place != m_books.rend())
        open(static_cast<int>(m_books.rend() - place) - 1);
}

void AddressBooks::cmdRemove_Click()
{
    if (m_selected < 0)
        return;
    if (m_selected == 0) {
        m_prompts.notice(notice(Icon::Critical, tr("The standard address book can't be deleted.")));
        return;
    }
    const QString text =
        tr("Are you sure to delete the selected address book? All the contacts will be "
           "deleted! Do you want to continue?");
    m_prompts.ask(question(Topic::DeleteBook, text), whileOpen(), [this](Answer answer) {
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
    if (!LoadRubricheList() || m_books.empty())
        return;
    // Nothing but this entry goes, whatever other programs did to the list since it was read.
    std::vector<AddressBook> left = m_books;
    const auto place = std::find(left.begin() + 1, left.end(), removed);
    if (place != left.end()) {
        left.erase(place);
        if (const auto saved = m_index.SaveRubricheList(left); saved)
            m_books = std::move(left);
        else
            refuse(tr("The address book could not be removed."), saved.error());
    }
    open(0);
}

void AddressBooks::cmdNew_Confirmed(const Contact &contact)
{
    change([&] { m_book.append(withDisplayName(contact)); });
    Q_EMIT contactKept(static_cast<int>(contactTable().size()));
}

void AddressBooks::cmdEdit_Confirmed(int row, const Contact &contact)
{
    change([&] { m_book.replace(row, withDisplayName(contact)); });
    Q_EMIT contactKept(row);
}

void AddressBooks::cmdDelete_Click(const std::vector<int> &rows)
{
    if (rows.empty())
        return;
    // The Italian text has no "*N*" and says no number; that is intended.
    const QString text = tr("Are you sure to delete *N* selected contact(s)?")
                             .replace(QLatin1String("*N*"), QString::number(rows.size()));
    m_prompts.ask(question(Topic::DeleteContacts, text), whileOpen(), [this, rows](Answer answer) {
        if (answer == Answer::Ok)
            change([&] { m_book.remove(rows); });
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
        refuse(tr("The contacts cannot be read."), content.error());
        return;
    }
    const ImportedContacts imported = importContacts(*content, m_codePage);
    if (!imported.contacts.empty()) {
        change([&] {
            for (const Contact &contact : imported.contacts)
                m_book.append(contact);
        });
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
