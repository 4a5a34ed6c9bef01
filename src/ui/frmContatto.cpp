#include "ui/frmContatto.h"

#include "addressbook/ContactCheck.h"
#include "base/Lines.h"
#include "ui_frmContatto.h"

#include <QPushButton>
#include <QTextDocument>

#include <array>
#include <utility>

namespace {

using Line = std::pair<QLineEdit * Ui::frmContatto::*, ContactColumn>;
const std::array Lines{
    Line{&Ui::frmContatto::txtName, ContactColumn::Name},
    Line{&Ui::frmContatto::txtCompany, ContactColumn::Company},
    Line{&Ui::frmContatto::txtEmail, ContactColumn::Email},
    Line{&Ui::frmContatto::txtAddress, ContactColumn::Address},
    Line{&Ui::frmContatto::txtCity, ContactColumn::City},
    Line{&Ui::frmContatto::txtState, ContactColumn::State},
    Line{&Ui::frmContatto::txtCAP, ContactColumn::PostCode},
    Line{&Ui::frmContatto::txtCountry, ContactColumn::Country},
    Line{&Ui::frmContatto::txtTel, ContactColumn::Telephone},
    Line{&Ui::frmContatto::txtFax, ContactColumn::Fax},
    Line{&Ui::frmContatto::txtCel, ContactColumn::Mobile},
};

// What is pasted from a table ends with the end of its row, which no one-line field has.
QString pastedLine(QString text)
{
    while (text.endsWith(u'\r') || text.endsWith(u'\n'))
        text.chop(1);
    return oneLine(text);
}

// Files have CR LF where the box has paragraphs. Its plain text would turn the blanks that part no
// line into common ones.
QString notesOf(const QTextDocument &document)
{
    return document.toRawText().replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
}

} // namespace

// The language of the address book window is told by its caption; that is intended.
frmContatto::frmContatto(const QString &captionOfAddressBook, Prompts &prompts,
                         const QString &placeFile, QWidget *parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmContatto>()),
      m_language(captionOfAddressBook == QLatin1String("Address Book") ? Language::English
                                                                       : Language::Italian),
      m_prompts(prompts),
      m_place(placeFile, QStringLiteral("frmContatto"))
{
    m_ui->setupUi(this);
    Localize();
    m_place.restoreSize(*this);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmContatto::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

frmContatto::~frmContatto() = default;

QString frmContatto::text(const char *source) const
{
    return textIn(m_language, "frmContatto", source);
}

void frmContatto::Localize()
{
    setWindowTitle(text(QT_TR_NOOP("New Contact")));
    m_ui->lblNome->setText(text(QT_TR_NOOP("Name:")));
    m_ui->lblAzienda->setText(text(QT_TR_NOOP("Company:")));
    m_ui->lblEmail->setText(text(QT_TR_NOOP("E-Mail:")));
    m_ui->lblIndirizzo->setText(text(QT_TR_NOOP("Address:")));
    m_ui->lblCity->setText(text(QT_TR_NOOP("Town/City:")));
    m_ui->lblProv->setText(text(QT_TR_NOOP("State:")));
    m_ui->lblCAP->setText(text(QT_TR_NOOP("Post/Zip Code:")));
    m_ui->lblStato->setText(text(QT_TR_NOOP("Country:")));
    m_ui->lblTelefono->setText(text(QT_TR_NOOP("Telephone:")));
    m_ui->lblFax->setText(text(QT_TR_NOOP("Fax:")));
    m_ui->lblCell->setText(text(QT_TR_NOOP("Mobile phone:")));
    m_ui->lblNote->setText(text(QT_TR_NOOP("Notes:")));
    m_ui->cmdCancel->setText(text(QT_TR_NOOP("&Cancel")));
}

void frmContatto::Edit()
{
    setWindowTitle(text(QT_TR_NOOP("Edit Contact")));
}

void frmContatto::fill(const Contact &contact)
{
    m_filled = contact;
    for (const auto &[box, column] : Lines)
        (m_ui.get()->*box)->setText(contact[column]);
    m_ui->txtNotes->setPlainText(contact[ContactColumn::Notes]);
}

Contact frmContatto::contact() const
{
    // A box shows less than a field may hold: what nobody touched stays as it was.
    Contact contact = m_filled;
    for (const auto &[box, column] : Lines) {
        if (const QLineEdit &edit = *(m_ui.get()->*box); edit.isModified())
            contact[column] = pastedLine(edit.text());
    }
    if (m_ui->txtNotes->document()->isModified())
        contact[ContactColumn::Notes] = notesOf(*m_ui->txtNotes->document());
    return contact;
}

void frmContatto::cmdOK_Click()
{
    if (const auto refusal = refusalOf(contact(), m_language)) {
        m_prompts.notice(*refusal);
        return;
    }
    Cancelled = false;
    accept();
}

void frmContatto::done(int result)
{
    m_place.saveSize(*this);
    QDialog::done(result);
}
