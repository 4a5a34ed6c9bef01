#pragma once

#include "ui/WindowParts.h"

#include <QPointer>

class frmRubrica;

/// The windows of the address books, each of which blocks the main window while it is open.
class AddressBookWindows
{
public:
    /// They are shown over that window.
    AddressBookWindows(const WindowParts &parts, QWidget &window);

    void mnuRubrica_Click();
    /// Makes a whole book the project's recipients.
    void cmdFromRubrica_Click();
    /// The program ends: an open book is written back.
    void endSession();

private:
    WindowParts m_parts;
    QWidget &m_window;
    QPointer<frmRubrica> m_addressBook;
};
