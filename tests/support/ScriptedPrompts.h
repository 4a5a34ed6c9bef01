#pragma once

#include "prompts/Prompts.h"

#include <QList>
#include <QString>

#include <deque>

/// Answers the boxes of the program from a script. An unexpected box, an answer that is not on
/// offer and an answer left over at the end are failures of the test. Boxes stay open until the
/// test lets them be answered, so that it can do something behind them.
class ScriptedPrompts : public Prompts
{
public:
    ~ScriptedPrompts() override;

    /// The answers to come, in order.
    void expectAnswer(Topic topic, Answer answer);
    void expectText(const QString &prompt, const QString &answer);
    void expectFile(const QString &title, const QString &answer);

    /// The notices shown since the last call, in order.
    [[nodiscard]] QList<Notice> takeNotices();
    /// The texts of those notices.
    [[nodiscard]] QStringList takeNoticeTexts();
    /// The boxes with an answer that are open.
    [[nodiscard]] int openBoxes() const { return static_cast<int>(m_open.size()); }
    [[nodiscard]] bool scriptIsUsedUp() const { return m_script.empty(); }
    /// Answers the box that has been open longest.
    void answerOne();
    /// Answers boxes until none is open, also those that answers open.
    void answerAll();

    /// The boxes with an answer, as they were asked.
    QList<Question> questions;
    QList<InputBox> inputBoxes;
    QList<FileDialog> fileDialogs;

    void notice(const Notice &notice) override;
    void ask(const Question &question, Stands stands, std::function<void(Answer)> then) override;
    void askText(const InputBox &box, Stands stands, std::function<void(QString)> then) override;
    void askFile(const FileDialog &dialog, Stands stands,
                 std::function<void(QString)> then) override;

private:
    struct Line
    {
        QString box; ///< what the box must be: its topic, prompt or title
        QString text;
        Answer answer = Answer::Cancel;
    };

    QString nextAnswer(const QString &box, Answer *answer = nullptr);

    QList<Notice> m_notices;
    std::deque<Line> m_script;
    std::deque<std::function<void()>> m_open;
};
