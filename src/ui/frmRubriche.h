#pragma once

#include "addressbook/BookIndex.h"
#include "ui/WindowPlace.h"

#include <QDialog>

#include <memory>
#include <optional>

namespace Ui {
class frmRubriche;
}

/// Lets the user pick one of the address books. It opens none.
class frmRubriche : public QDialog
{
    Q_OBJECT

public:
    frmRubriche(const BookIndex &index, const QString &placeFile, QWidget *parent);
    ~frmRubriche() override;

    /// The file of the selected book as the index has it; nothing when none is selected.
    [[nodiscard]] std::optional<QString> selectedFile() const;

    bool Cancelled = true; ///< until the user confirms

    void done(int result) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void Localize();
    void LoadRubricheList(const BookIndex &index);
    void cmdOK_Click();

    std::unique_ptr<Ui::frmRubriche> m_ui;
    WindowPlace m_place;
};
