#include "ui/AddressBookWindows.h"

#include "ui/frmRubrica.h"
#include "ui/frmRubriche.h"

AddressBookWindows::AddressBookWindows(const WindowParts &parts, QWidget &window)
    : m_parts(parts), m_window(window)
{}

void AddressBookWindows::mnuRubrica_Click()
{
    // Desktops that show the menus elsewhere do not know that a dialog blocks them.
    if (m_addressBook && m_addressBook->isVisible())
        return;
    m_addressBook = new frmRubrica(m_parts, &m_window);
    m_addressBook->setAttribute(Qt::WA_DeleteOnClose);
    m_addressBook->open();
}

void AddressBookWindows::cmdFromRubrica_Click()
{
    const BookIndex index(m_parts.codePage, m_parts.programFolder);
    auto *const chooser = new frmRubriche(index, m_parts.placeFile, &m_window);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(chooser, &QDialog::finished, &m_window, [this, chooser] {
        const auto file = chooser->selectedFile();
        if (!chooser->Cancelled && file)
            m_parts.workspace.recipientsFile.SetRecipientsFile(*file);
    });
    chooser->open();
}

void AddressBookWindows::endSession()
{
    if (m_addressBook)
        m_addressBook->endSession();
}
