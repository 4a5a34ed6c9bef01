#pragma once

#include "base/CodePage.h"

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class frmPreview;
}

/// The files of a message, and whether the main window shows them.
struct PreviewSource
{
    QString textPath;
    QString htmlPath;
    bool textIsShown = false;
    bool htmlIsShown = false;
};

/// The window that shows a message's files, as they are written or as a recipient gets them. It
/// reads them again whenever it is shown, and when F5 is pressed.
class frmPreview : public QDialog
{
    Q_OBJECT

public:
    explicit frmPreview(const CodePage &codePage, QWidget *parent = nullptr);
    ~frmPreview() override;

    /// What there is to be seen from now on. The HTML is chosen when there is one.
    void Init(const PreviewSource &source, const QStringList &names);
    /// Shows the one format or the other.
    void SetMode(bool html);

public Q_SLOTS:
    void Option1_Click();
    void Option2_Click();
    void cmdChiudi_Click();

protected:
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void readAgain();
    void showText();
    void showNotice(const QString &text);
    [[nodiscard]] bool hasSomething() const;

    const CodePage &m_codePage;
    std::unique_ptr<Ui::frmPreview> m_ui;
    PreviewSource m_source;
    bool m_isHtml = false;
    QString m_text; // of the file, as it is written
};
