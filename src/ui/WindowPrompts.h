#pragma once

#include "prompts/LoginPrompt.h"

#include <QDialog>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <vector>

/// The boxes of the program over a window. Their object names are "notice", "question", "inputBox",
/// "fileDialog" and "frmAccesso"; the last, for logins, does not block the window.
class WindowPrompts : public QObject, public Prompts, public LoginPrompt
{
    Q_OBJECT

public:
    /// The desktop's file dialogs, where it has some, or Qt's.
    enum class Dialogs { Native, QtOwn };

    explicit WindowPrompts(QObject *parent = nullptr);
    ~WindowPrompts() override;

    /// The window that boxes open over, or over a dialog that blocks it. They wait until there is a
    /// window and the event loop runs.
    void setWindow(QWidget *window);
    void setDialogs(Dialogs dialogs) { m_dialogs = dialogs; }

    void notice(const Notice &notice) override;
    void ask(const Question &question, Stands stands, std::function<void(Answer)> then) override;
    void askText(const InputBox &box, Stands stands, std::function<void(QString)> then) override;
    void askFile(const FileDialog &dialog, Stands stands,
                 std::function<void(QString)> then) override;
    void askLogin(const LoginBox &box, Stands stands,
                  std::function<void(std::optional<LoginEntry>)> then) override;

public Q_SLOTS:
    /// Closes the boxes whose answer does not count any more. To be called through a queued
    /// connection, whenever something that conditions look at has changed.
    void closeStale() override;

private:
    enum class Kind { Notice, Asking, AskingBeside };
    /// A box that has not been opened yet.
    struct Waiting
    {
        std::function<QDialog *(QWidget *window)> make;
        Stands stands;
        Kind kind = Kind::Asking;
    };
    struct Open
    {
        QPointer<QDialog> box;
        Stands stands;
        Kind kind = Kind::Asking;
    };

    void enqueue(Waiting waiting);
    void openWaiting();
    void open(const Waiting &waiting);
    void forget(const QDialog *box);
    void discard(QDialog *box);
    void activateLast();
    void post(const Stands &stands, std::function<void()> then);
    [[nodiscard]] QWidget *windowInFront() const;
    [[nodiscard]] bool noticeIsOpen() const;
    [[nodiscard]] QString folderFor(const FileDialog &dialog) const;

    QPointer<QWidget> m_window;
    Dialogs m_dialogs = Dialogs::Native;
    QString m_lastFolder;
    std::deque<Waiting> m_waiting;
    std::vector<Open> m_open;
};
