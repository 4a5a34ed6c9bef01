#pragma once

#include "addressbook/AddressBooks.h"
#include "ui/ContactModel.h"
#include "ui/WindowParts.h"
#include "ui/WindowPlace.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace Ui {
class frmRubrica;
}

/// The address books on the left, the contacts of the open one on the right.
class frmRubrica : public QDialog
{
    Q_OBJECT

public:
    frmRubrica(const WindowParts &parts, QWidget *parent);
    ~frmRubrica() override;

    /// Writes the open book back, as far as it can be written: the program ends.
    void endSession();
    /// Closes, once the open book is written back.
    void reject() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void Localize();
    void bindBooks();
    void bindContacts();
    void addActions();

    void showBooks();
    void showCount();
    void showLine();
    void applyRights();
    void showContact(int row);
    void keepSelection(const std::function<void()> &change);
    void select(const std::vector<int> &places);

    void cmdNew_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void edit(const Contact &contact, int row);
    [[nodiscard]] std::vector<int> selectedContacts() const;
    void copy() const;
    void addToRecipients();

    std::unique_ptr<Ui::frmRubrica> m_ui;
    Prompts &m_prompts;
    RecipientCommands &m_recipients;
    QLocale m_numbers;
    QString m_placeFile;
    WindowPlace m_place;
    AddressBooks m_books;
    ContactModel m_contacts;
    std::vector<QAction *> m_changes; ///< what needs a book that may be changed
    std::vector<std::pair<QAction *, const char *>> m_entries; ///< with their English texts
    int m_currentPlace = -1;      ///< of the contact that the keys are at, while all change
    bool m_opens = false;         ///< the selection moved, and the book is opened by that
    bool m_openedByPress = false; ///< so it is by the press whose click is to come
};
