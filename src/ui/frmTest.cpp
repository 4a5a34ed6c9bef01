#include "ui/frmTest.h"

#include "ui_frmTest.h"

#include <QPushButton>

frmTest::frmTest(TestToSender &test, QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmTest>())
{
    m_ui->setupUi(this);
    connect(m_ui->cmdStop, &QPushButton::clicked, this, &QDialog::reject);
    connect(this, &QDialog::rejected, &test, &TestToSender::cmdStop_Click);
    const auto follow = [this, &test] {
        if (test.address().isEmpty())
            accept();
        else
            m_ui->lblTest->setText(tr("Sending a test to %1...").arg(test.address()));
    };
    connect(&test, &TestToSender::addressChanged, this, follow);
    follow();
}

frmTest::~frmTest() = default;
