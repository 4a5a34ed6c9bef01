#pragma once

#include "addressbook/Contact.h"
#include "base/Language.h"
#include "prompts/Prompts.h"
#include "ui/WindowPlace.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmContatto;
}

/// Creates or edits one contact. It only checks what was entered; its caller fills it and reads it.
class frmContatto : public QDialog
{
    Q_OBJECT

public:
    /// The caption is that of the address book window, whose language it speaks.
    frmContatto(const QString &captionOfAddressBook, Prompts &prompts, const QString &placeFile,
                QWidget *parent);
    ~frmContatto() override;

    /// From now on it edits a contact that there is.
    void Edit();
    /// Shows the fields of that contact.
    void fill(const Contact &contact);
    /// What its boxes hold; the display name is not among them.
    [[nodiscard]] Contact contact() const;

    bool Cancelled = true; ///< until a contact is confirmed that can be taken

    void done(int result) override;

private:
    void Localize();
    void cmdOK_Click();
    [[nodiscard]] QString text(const char *source) const;

    std::unique_ptr<Ui::frmContatto> m_ui;
    Language m_language;
    Contact m_filled;
    Prompts &m_prompts;
    WindowPlace m_place;
};
