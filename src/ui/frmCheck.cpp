#include "ui/frmCheck.h"

#include "ui_frmCheck.h"

#include <QPushButton>

frmCheck::frmCheck(Preflight &preflight, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmCheck>()), m_preflight(preflight)
{
    m_ui->setupUi(this);
    m_ui->lstFindings->setSelectionMode(QAbstractItemView::SingleSelection);
    connect(&preflight, &Preflight::findingsChanged, this, &frmCheck::showFindings);
    connect(&preflight, &Preflight::finished, this, &frmCheck::showFindings);
    const auto chooseAt = [this](const QModelIndex &index) { choose(index.row()); };
    connect(m_ui->lstFindings, &LineList::clicked, this, chooseAt);
    connect(m_ui->lstFindings, &LineList::activated, this, chooseAt);
    connect(m_ui->cmdAgain, &QPushButton::clicked, this, &frmCheck::checkAgain);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::finished, this, [this] { m_preflight.giveUp(); });
}

frmCheck::~frmCheck() = default;

void frmCheck::checkAgain()
{
    m_preflight.begin();
    showFindings();
}

void frmCheck::showFindings()
{
    struct Sign
    {
        const char *picture;
        QString word;
    };
    const auto signOf = [](Finding::Kind kind) -> Sign {
        switch (kind) {
        case Finding::Kind::Refused:
            return {"bad", tr("Start refuses")};
        case Finding::Kind::Fails:
            return {"bad", tr("The run would fail")};
        case Finding::Kind::Asked:
            return {"warning", tr("Start asks")};
        case Finding::Kind::Advice:
            break;
        }
        return {"note", tr("Advice")};
    };
    QList<ShownLine> lines;
    for (const Finding &finding : m_preflight.findings()) {
        const Sign sign = signOf(finding.kind);
        const QString text = sign.word + QLatin1String(": ") + finding.text;
        lines.append({sign.picture, text, text});
    }
    m_ui->lstFindings->setLines(lines);
    if (m_preflight.isRunning())
        m_ui->lblState->setText(tr("Asking the server..."));
    else if (lines.isEmpty())
        m_ui->lblState->setText(tr("Nothing to object."));
    else
        m_ui->lblState->setText(
            tr("Click on a line, or press Enter, to go where it is put right."));
}

void frmCheck::choose(int row)
{
    // By value: what comes of it may change the findings.
    const Finding finding = m_preflight.findings().value(row);
    Q_EMIT wanted(finding);
}
