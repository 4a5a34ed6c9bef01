#pragma once

#include "preflight/TestToSender.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmTest;
}

/// Says that a test message is on its way. It closes when the test is over; closing it before gives
/// the test up.
class frmTest : public QDialog
{
    Q_OBJECT

public:
    frmTest(TestToSender &test, QWidget *parent);
    ~frmTest() override;

private:
    std::unique_ptr<Ui::frmTest> m_ui;
};
