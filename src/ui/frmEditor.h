#pragma once

#include "project/WindowSettings.h"
#include "prompts/Prompts.h"

#include <QDialog>

#include <memory>

class QLineEdit;

namespace Ui {
class frmEditor;
}

/// Chooses the programs that edit the message files.
class frmEditor : public QDialog
{
    Q_OBJECT

public:
    frmEditor(WindowSettings &settings, Prompts &prompts, const QString &programFolder,
              QWidget *parent);
    ~frmEditor() override;

private:
    void browse(QLineEdit &box);

    std::unique_ptr<Ui::frmEditor> m_ui;
    WindowSettings &m_settings;
    Prompts &m_prompts;
    QString m_programFolder;
};
