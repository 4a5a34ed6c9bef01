#pragma once

#include "recipients/RecipientDetails.h"

#include <QDialog>

#include <memory>

class RecipientModel;

namespace Ui {
class frmDetails;
}

/// Shows all that is known of one recipient, and follows the row wherever it moves and whatever
/// becomes of it. It blocks nothing.
class frmDetails : public QDialog
{
    Q_OBJECT

public:
    frmDetails(const RecipientModel &recipients, const RegionalFormats &formats, QWidget *parent);
    ~frmDetails() override;

    /// From now on it is about the row with that identity.
    void showRow(quint64 id);

private:
    void follow();
    void showLines();
    void copy() const;

    std::unique_ptr<Ui::frmDetails> m_ui;
    const RecipientModel &m_recipients;
    const RegionalFormats &m_formats;
    quint64 m_id = 0;
    int m_position = 0; ///< 0: the row is gone
    QList<DetailLine> m_lines;
};
