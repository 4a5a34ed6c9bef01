#include "ui/frmRubriche.h"

#include "ui/BookItems.h"
#include "ui_frmRubriche.h"

#include <QEvent>
#include <QPushButton>

frmRubriche::frmRubriche(const BookIndex &index, const QString &placeFile, QWidget *parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmRubriche>()),
      m_place(placeFile, QStringLiteral("frmRubriche"))
{
    m_ui->setupUi(this);
    m_place.restoreSize(*this);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmRubriche::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->Rubriche, &QTreeWidget::itemDoubleClicked, this, &frmRubriche::cmdOK_Click);
    LoadRubricheList(index);
}

frmRubriche::~frmRubriche() = default;

void frmRubriche::LoadRubricheList(const BookIndex &index)
{
    const auto books = index.LoadRubricheList();
    if (books)
        showBooks(*m_ui->Rubriche, *books, 0);
    else
        m_ui->line->setText(BookIndex::troubleOf(books.error()));
}

std::optional<QString> frmRubriche::selectedFile() const
{
    const QList<QTreeWidgetItem *> selected = m_ui->Rubriche->selectedItems();
    return selected.isEmpty() ? std::nullopt : std::optional(fileOf(*selected.front()));
}

void frmRubriche::cmdOK_Click()
{
    Cancelled = false;
    accept();
}

void frmRubriche::done(int result)
{
    m_place.saveSize(*this);
    QDialog::done(result);
}

void frmRubriche::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        Localize();
    QDialog::changeEvent(event);
}

void frmRubriche::Localize()
{
    m_ui->retranslateUi(this);
}
