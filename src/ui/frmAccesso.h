#pragma once

#include "prompts/LoginPrompt.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmAccesso;
}

/// Asks for the user and the password of a server. It is shown beside the main window and blocks
/// nothing of it.
class frmAccesso : public QDialog
{
    Q_OBJECT

public:
    frmAccesso(const LoginBox &box, QWidget *parent);
    ~frmAccesso() override;

    /// What was entered. The password leaves the box with it.
    [[nodiscard]] LoginEntry takeEntry();

private:
    void showRefusal(const QString &refusal);

    std::unique_ptr<Ui::frmAccesso> m_ui;
};
