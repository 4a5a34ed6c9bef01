#pragma once

#include "cli/Output.h"
#include "prompts/Prompts.h"

#include <QObject>

/// The boxes of a program without a window: notices become messages, and every question has its
/// answer beforehand.
class CliPrompts : public QObject, public Prompts
{
    Q_OBJECT

public:
    /// Whether to go on although linked pictures will not travel.
    CliPrompts(Output &output, bool goesOnWithoutPictures);

    void notice(const Notice &notice) override;
    void ask(const Question &question, Stands stands, std::function<void(Answer)> then) override;
    void askText(const InputBox &box, Stands stands, std::function<void(QString)> then) override;
    void askFile(const FileDialog &dialog, Stands stands,
                 std::function<void(QString)> then) override;

    /// Calls back from the event loop when no question is open any more.
    void whenQuiet(std::function<void()> then);

private:
    void post(std::function<void()> answer);

    Output &m_output;
    bool m_goesOnWithoutPictures;
    int m_open = 0;
};
