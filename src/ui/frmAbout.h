#pragma once

#include "base/Shell.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmAbout;
}

/// Says what program this is and where its maker is found.
class frmAbout : public QDialog
{
    Q_OBJECT

public:
    frmAbout(Shell &shell, QWidget *parent);
    ~frmAbout() override;

private:
    std::unique_ptr<Ui::frmAbout> m_ui;
};
