#pragma once

#include "preflight/Preflight.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmCheck;
}

/// Shows what was found about the project before it is sent.
class frmCheck : public QDialog
{
    Q_OBJECT

public:
    frmCheck(Preflight &preflight, QWidget *parent);
    ~frmCheck() override;

    /// Looks everything over anew.
    void checkAgain();

Q_SIGNALS:
    /// The user wants to go where this is put right.
    void wanted(const Finding &finding);

private:
    void showFindings();
    void choose(int row);

    std::unique_ptr<Ui::frmCheck> m_ui;
    Preflight &m_preflight;
};
