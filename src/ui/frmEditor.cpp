#include "ui/frmEditor.h"

#include "ui_frmEditor.h"

#include <QPointer>

frmEditor::frmEditor(WindowSettings &settings, Prompts &prompts, const QString &programFolder,
                     QWidget *parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmEditor>()),
      m_settings(settings),
      m_prompts(prompts),
      m_programFolder(programFolder)
{
    m_ui->setupUi(this);
    m_ui->txtTextEditor->setText(settings.TXTEditorPath);
    m_ui->txtHTMLEditor->setText(settings.HTMLEditorPath);
    connect(m_ui->cmdBrowseTxt, &QPushButton::clicked, this,
            [this] { browse(*m_ui->txtTextEditor); });
    connect(m_ui->cmdBrowseHTML, &QPushButton::clicked, this,
            [this] { browse(*m_ui->txtHTMLEditor); });
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this, [this] {
        m_settings.setEditors(m_ui->txtTextEditor->text(), m_ui->txtHTMLEditor->text());
    });
}

frmEditor::~frmEditor() = default;

void frmEditor::browse(QLineEdit &box)
{
    FileDialog dialog;
    dialog.title = windowTitle();
    dialog.filter = tr("Program File (*.exe)|*.exe|All files (*.*)|*.*");
    dialog.initialFolder = m_programFolder;
    const QPointer<QLineEdit> open(&box);
    m_prompts.askFile(
        dialog, [open] { return open != nullptr; },
        [open](const QString &name) {
            if (!name.isEmpty())
                open->setText(name);
        });
}
