#include "ui/frmRubrica.h"

#include "ui/BookItems.h"
#include "ui/RowSelection.h"
#include "ui/frmContatto.h"
#include "ui_frmRubrica.h"

#include <QAction>
#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QShortcut>

#include <algorithm>
#include <utility>

frmRubrica::frmRubrica(const WindowParts &parts, QWidget *parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmRubrica>()),
      m_prompts(parts.prompts),
      m_recipients(parts.workspace.recipientCommands),
      m_numbers(localeOf(parts.workspace.form.language())),
      m_placeFile(parts.placeFile),
      m_place(parts.placeFile, QStringLiteral("frmRubrica")),
      m_books(parts.prompts, parts.codePage, parts.programFolder),
      m_contacts(m_books)
{
    m_ui->setupUi(this);
    m_ui->splitter->setStretchFactor(0, 0);
    m_ui->splitter->setStretchFactor(1, 1);
    // Both lists begin at the same height.
    m_ui->lblRubriche->setMinimumHeight(m_ui->txtFind->sizeHint().height());
    bindBooks();
    bindContacts();
    addActions();
    Localize();
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &frmRubrica::reject);
    connect(&m_books, &AddressBooks::lineChanged, this, &frmRubrica::showLine);
    connect(&m_books, &AddressBooks::booksChanged, this, &frmRubrica::showLine);
    connect(m_ui->cmdDiscard, &QPushButton::clicked, &m_books, &AddressBooks::cmdDiscard_Click);

    m_place.restoreSize(*this);
    if (!m_place.restoreParts(*m_ui->splitter, *m_ui->Elenco->header()))
        m_ui->splitter->setSizes({width() * 3 / 10, width() * 7 / 10});
    m_books.load();
    m_ui->Elenco->setFocus();
}

frmRubrica::~frmRubrica() = default;

void frmRubrica::endSession()
{
    m_books.endSession();
}

void frmRubrica::reject()
{
    if (!m_books.unload())
        return;
    m_place.saveSize(*this);
    m_place.saveParts(*m_ui->splitter, *m_ui->Elenco->header());
    QDialog::reject();
}

void frmRubrica::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Localize();
    QDialog::changeEvent(event);
}

void frmRubrica::Localize()
{
    m_ui->retranslateUi(this);
    m_contacts.translateHeadings();
    for (const auto &[entry, text] : m_entries)
        entry->setText(tr(text));
    showCount();
}

void frmRubrica::bindBooks()
{
    QTreeWidget &list = *m_ui->Rubriche;
    connect(&m_books, &AddressBooks::booksChanged, this, &frmRubrica::showBooks);
    connect(m_ui->cmdAdd, &QPushButton::clicked, &m_books, &AddressBooks::cmdAdd_Click);
    connect(m_ui->cmdRemove, &QPushButton::clicked, &m_books, &AddressBooks::cmdRemove_Click);
    // Keys move the selection and open; so does the press of a button, whose click then follows.
    // The list ends what it is at before it is told which book is open now.
    connect(&list, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *book) {
        if (book == nullptr)
            return;
        m_opens = true;
        const int place = m_ui->Rubriche->indexOfTopLevelItem(book);
        QMetaObject::invokeMethod(
            &m_books,
            [this, place] {
                m_opens = false;
                m_books.Rubriche_Click(place);
            },
            Qt::QueuedConnection);
    });
    connect(&list, &QTreeWidget::itemPressed, this,
            [this] { m_openedByPress = std::exchange(m_opens, false); });
    connect(&list, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *book) {
        if (!m_openedByPress)
            m_books.Rubriche_Click(m_ui->Rubriche->indexOfTopLevelItem(book));
    });
    const auto press = [&list](Qt::Key key, QPushButton *button) {
        auto *const shortcut = new QShortcut(key, &list);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    };
    press(Qt::Key_Insert, m_ui->cmdAdd);
    press(Qt::Key_Delete, m_ui->cmdRemove);
}

void frmRubrica::bindContacts()
{
    QTreeView &list = *m_ui->Elenco;
    list.setModel(&m_contacts);
    list.header()->setSectionsClickable(true);
    list.header()->setSortIndicator(-1, Qt::AscendingOrder);
    list.header()->setSortIndicatorShown(true);
    list.setColumnWidth(0, width() * 3 / 8);
    connect(list.header(), &QHeaderView::sectionClicked, this, [this](int column) {
        keepSelection([this, column] { m_contacts.columnClick(column); });
        m_ui->Elenco->header()->setSortIndicator(column, m_contacts.shown().sortOrder());
    });
    connect(&list, &QTreeView::doubleClicked, this, &frmRubrica::cmdEdit_Click);
    connect(&m_contacts, &ContactModel::modelReset, this, &frmRubrica::showCount);
    // Connected behind the list's own, which forgets where the keys were.
    connect(&m_contacts, &ContactModel::modelAboutToBeReset, this,
            [this, &list] { m_currentPlace = list.currentIndex().row(); });
    connect(&m_contacts, &ContactModel::modelReset, this, [this, &list] {
        const int place = qMin(m_currentPlace, m_contacts.rowCount() - 1);
        list.selectionModel()->setCurrentIndex(m_contacts.index(place, 0),
                                               QItemSelectionModel::NoUpdate);
    });
    connect(&m_books, &AddressBooks::contactKept, this, &frmRubrica::showContact);
    connect(m_ui->cmdNew, &QPushButton::clicked, this, &frmRubrica::cmdNew_Click);
    connect(m_ui->cmdEdit, &QPushButton::clicked, this, &frmRubrica::cmdEdit_Click);
    connect(m_ui->cmdDelete, &QPushButton::clicked, this, &frmRubrica::cmdDelete_Click);

    connect(m_ui->txtFind, &QLineEdit::textChanged, this,
            [this](const QString &words) { keepSelection([&] { m_contacts.find(words); }); });
    connect(m_ui->txtFind, &QLineEdit::returnPressed, m_ui->Elenco,
            [this] { m_ui->Elenco->setFocus(Qt::TabFocusReason); });
    auto *const clear = new QShortcut(Qt::Key_Escape, m_ui->txtFind);
    clear->setContext(Qt::WidgetShortcut);
    clear->setEnabled(false);
    connect(clear, &QShortcut::activated, m_ui->txtFind, &QLineEdit::clear);
    connect(m_ui->txtFind, &QLineEdit::textChanged, clear,
            [clear](const QString &words) { clear->setEnabled(!words.isEmpty()); });
}

// The entries of the context menu of the contacts, and their keys. Localize gives them their texts.
void frmRubrica::addActions()
{
    const auto add = [this](const char *text, const QList<QKeySequence> &keys, auto procedure) {
        auto *const action = new QAction(this);
        action->setShortcuts(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, procedure);
        m_ui->Elenco->addAction(action);
        m_entries.emplace_back(action, text);
        return action;
    };
    const auto separate = [this] {
        auto *const separator = new QAction(this);
        separator->setSeparator(true);
        m_ui->Elenco->addAction(separator);
    };
    m_changes = {
        add(QT_TR_NOOP("New"), {Qt::Key_Insert}, [this] { m_ui->cmdNew->click(); }),
        add(QT_TR_NOOP("Edit"), {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter},
            [this] { m_ui->cmdEdit->click(); }),
        add(QT_TR_NOOP("Delete"), {Qt::Key_Delete}, [this] { m_ui->cmdDelete->click(); }),
    };
    separate();
    add(QT_TR_NOOP("Copy as text"), {QKeySequence::Copy}, [this] { copy(); });
    add(QT_TR_NOOP("Add to recipients"), {}, [this] { addToRecipients(); });
    separate();
    m_changes.push_back(
        add(QT_TR_NOOP("Import contacts..."), {}, [this] { m_books.mnuImport_Click(); }));
}

void frmRubrica::showBooks()
{
    const QSignalBlocker quiet(m_ui->Rubriche);
    ::showBooks(*m_ui->Rubriche, m_books.books(), m_books.selectedBook());
    applyRights();
}

void frmRubrica::applyRights()
{
    m_ui->cmdAdd->setEnabled(m_books.canChangeBooks());
    m_ui->cmdRemove->setEnabled(m_books.canChangeBooks());
    for (QPushButton *const button : {m_ui->cmdNew, m_ui->cmdEdit, m_ui->cmdDelete})
        button->setEnabled(m_books.canChangeContacts());
    for (QAction *const action : m_changes)
        action->setEnabled(m_books.canChangeContacts());
}

void frmRubrica::showCount()
{
    m_ui->lblCount->setText(tr("Shown: %1 of %2")
                                .arg(m_numbers.toString(m_contacts.rowCount()),
                                     m_numbers.toString(m_books.contactTable().size())));
}

void frmRubrica::showLine()
{
    m_ui->line->setText(m_books.line());
    m_ui->cmdDiscard->setVisible(m_books.isUnsaved());
}

std::vector<int> frmRubrica::selectedContacts() const
{
    std::vector<int> rows = selectedRows(*m_ui->Elenco->selectionModel());
    for (int &row : rows)
        row = m_contacts.rowAt(row);
    std::sort(rows.begin(), rows.end());
    return rows;
}

// The contacts keep their rows in the table; only their places in the list change.
void frmRubrica::keepSelection(const std::function<void()> &change)
{
    const std::vector<int> rows = selectedContacts();
    change();
    select(m_contacts.placesOf(rows));
}

// A contact that is not what is looked for would seem to be lost.
void frmRubrica::showContact(int row)
{
    if (!m_contacts.shown().shows(row))
        m_ui->txtFind->clear();
    select(m_contacts.placesOf({row}));
}

void frmRubrica::select(const std::vector<int> &places)
{
    QItemSelectionModel &selection = *m_ui->Elenco->selectionModel();
    selectRows(selection, places);
    if (places.empty())
        return;
    const QModelIndex first = m_contacts.index(places.front() - 1, 0);
    selection.setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    m_ui->Elenco->scrollTo(first);
}

void frmRubrica::cmdNew_Click()
{
    edit({}, 0);
}

void frmRubrica::cmdEdit_Click()
{
    const std::vector<int> places = selectedRows(*m_ui->Elenco->selectionModel());
    if (places.empty() || !m_books.canChangeContacts())
        return;
    // Of several the one that the keys are at.
    const int current = m_ui->Elenco->currentIndex().row() + 1;
    const bool isSelected = std::binary_search(places.begin(), places.end(), current);
    const int row = m_contacts.rowAt(isSelected ? current : places.front());
    edit(m_contacts.contact(row), row);
}

void frmRubrica::cmdDelete_Click()
{
    m_books.cmdDelete_Click(selectedContacts());
}

// Row 0 is a new contact.
void frmRubrica::edit(const Contact &contact, int row)
{
    auto *const editor = new frmContatto(windowTitle(), m_prompts, m_placeFile, this);
    if (row > 0)
        editor->Edit();
    editor->fill(contact);
    connect(editor, &QDialog::finished, this, [this, editor, row] {
        if (editor->Cancelled)
            return;
        if (row > 0)
            m_books.cmdEdit_Confirmed(row, editor->contact());
        else
            m_books.cmdNew_Confirmed(editor->contact());
    });
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void frmRubrica::copy() const
{
    QString text;
    for (const int place : selectedRows(*m_ui->Elenco->selectionModel())) {
        const Contact &contact = m_contacts.contact(m_contacts.rowAt(place));
        text += contact[ContactColumn::DisplayName] + u'\t' + contact[ContactColumn::Email] + u'\n';
    }
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void frmRubrica::addToRecipients()
{
    std::vector<NewRecipient> recipients;
    for (const int place : selectedRows(*m_ui->Elenco->selectionModel())) {
        const Contact &contact = m_contacts.contact(m_contacts.rowAt(place));
        recipients.push_back({contact[ContactColumn::DisplayName], contact[ContactColumn::Email]});
    }
    if (!recipients.empty())
        m_recipients.add(recipients);
}
