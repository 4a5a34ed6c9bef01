#include "ui/frmDetails.h"

#include "ui/RecipientModel.h"
#include "ui_frmDetails.h"

#include <QClipboard>
#include <QPushButton>
#include <QScrollBar>

frmDetails::frmDetails(const RecipientModel &recipients, const RegionalFormats &formats,
                       QWidget *parent)
    : QDialog(parent),
      m_ui(std::make_unique<Ui::frmDetails>()),
      m_recipients(recipients),
      m_formats(formats)
{
    m_ui->setupUi(this);
    // Addresses and identifiers have no place where they could be parted.
    m_ui->txtDetails->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(&recipients, &RecipientModel::published, this, &frmDetails::follow);
    connect(&recipients, &RecipientModel::modelReset, this, &frmDetails::follow);
    connect(m_ui->cmdCopy, &QPushButton::clicked, this, &frmDetails::copy);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

frmDetails::~frmDetails() = default;

void frmDetails::showRow(quint64 id)
{
    m_id = id;
    m_position = 0;
    m_lines.clear();
    follow();
}

// Of a row that is gone the last that was known stays.
void frmDetails::follow()
{
    m_position = m_recipients.list().positionOf(m_id, m_position);
    m_ui->lblGone->setVisible(m_position == 0);
    if (m_position == 0)
        return;
    const Recipient &row = m_recipients.list().at(m_position);
    const QList<DetailLine> lines = RecipientDetails::linesOf(row, m_formats);
    if (lines == m_lines)
        return;
    m_lines = lines;
    setWindowTitle(tr("Details of %1").arg(row.name));
    showLines();
}

// The place that was read stays in sight.
void frmDetails::showLines()
{
    QString table = QStringLiteral("<table cellpadding='3'>");
    for (const DetailLine &line : m_lines) {
        table += QStringLiteral("<tr><td style='white-space:pre'>%1:</td><td "
                                "style='white-space:pre-wrap'>%2</td></tr>")
                     .arg(line.label.toHtmlEscaped(), line.text.toHtmlEscaped());
    }
    const int place = m_ui->txtDetails->verticalScrollBar()->value();
    m_ui->txtDetails->setHtml(table + QLatin1String("</table>"));
    m_ui->txtDetails->verticalScrollBar()->setValue(place);
}

void frmDetails::copy() const
{
    QString text;
    for (const DetailLine &line : m_lines)
        text += line.label + QLatin1String(": ") + line.text + u'\n';
    QGuiApplication::clipboard()->setText(text);
}
