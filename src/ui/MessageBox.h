#pragma once

#include "prompts/Prompts.h"

#include <QMessageBox>

#include <utility>
#include <vector>

class QPlainTextEdit;

/// A message box of the program. Its texts are plain. What is too long for a box, and a word too
/// wide for one, can be scrolled in it, so that the box fits on every screen.
class MessageBox : public QMessageBox
{
    Q_OBJECT
    Q_PROPERTY(QString fullText READ fullText CONSTANT)

public:
    MessageBox(const Notice &notice, QWidget *window);
    MessageBox(const ::Question &question, QWidget *window);

    /// The whole text as it was given, also the part that is scrolled.
    [[nodiscard]] QString fullText() const { return m_fullText; }
    /// What the closed box was answered with.
    [[nodiscard]] Answer answer() const;

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    MessageBox(::Icon icon, const QString &title, const QString &text, const QString &detail,
               QWidget *window);

    /// Without a button that leaves the matter open, neither Esc nor the title bar closes the box.
    [[nodiscard]] bool mustBeDecided() const { return standardButtons() == (Yes | No); }
    [[nodiscard]] bool fits(const QString &text) const;
    void addButtons(Buttons buttons);
    void addScrolledText(const QString &text);
    void placeScrolledText();

    QString m_fullText;
    std::vector<std::pair<QAbstractButton *, Answer>> m_ownButtons; ///< with words of our own
    QPlainTextEdit *m_scrolledText = nullptr;
};
