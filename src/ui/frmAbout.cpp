#include "ui/frmAbout.h"

#include "base/Maker.h"
#include "ui/Pictures.h"
#include "ui_frmAbout.h"

namespace {

constexpr int LogoSize = 64;

} // namespace

frmAbout::frmAbout(Shell &shell, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmAbout>())
{
    m_ui->setupUi(this);
    m_ui->Picture1->setPixmap(
        Pictures::icon("application").pixmap(QSize(LogoSize, LogoSize), devicePixelRatio()));
    m_ui->lblVer->setText(QStringLiteral("Sorvanta " SORVANTA_VERSION));
    m_ui->Label14->setText(QLatin1String(Maker::Company));
    m_ui->Label15->setText(QLatin1String(Maker::PostalAddress));
    m_ui->Label16->setText(tr("Telephone: %1").arg(QLatin1String(Maker::Telephone)));
    m_ui->Label17->setText(tr("Fax: %1").arg(QLatin1String(Maker::Fax)));
    const auto makeLink = [this, &shell](QLabel &label, const QString &address,
                                         const QString &shown) {
        label.setText(QStringLiteral("<a href=\"%1\">%2</a>").arg(address, shown));
        connect(&label, &QLabel::linkActivated, this,
                [&shell](const QString &target) { shell.open(target); });
    };
    const QString product = QLatin1String(Maker::ProductPage);
    makeLink(*m_ui->Label2, product, product);
    makeLink(*m_ui->lblSito, QLatin1String(Maker::HomePage), QLatin1String(Maker::WebSiteHost));
    const QString email = QLatin1String(Maker::Email);
    makeLink(*m_ui->lblEmail, QLatin1String("mailto:") + email, email);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

frmAbout::~frmAbout() = default;
