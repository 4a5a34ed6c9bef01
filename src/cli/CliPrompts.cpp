#include "cli/CliPrompts.h"

CliPrompts::CliPrompts(Output &output, bool goesOnWithoutPictures)
    : m_output(output), m_goesOnWithoutPictures(goesOnWithoutPictures)
{}

void CliPrompts::notice(const Notice &notice)
{
    QString text = notice.text;
    if (!notice.detail.isEmpty())
        text += QLatin1String(" (") + notice.detail + u')';
    m_output.message(text.replace(QLatin1String("\r\n"), QLatin1String("\n")).trimmed());
}

void CliPrompts::ask(const Question &question, Stands stands, std::function<void(Answer)> then)
{
    Answer answer = Answer::No;
    if (question.topic == Topic::LinkedImages) {
        m_output.message(question.text);
        m_output.message(m_goesOnWithoutPictures
                             ? QStringLiteral("Going on, because of --yes.")
                             : QStringLiteral("Not started; --yes goes on all the same."));
        answer = m_goesOnWithoutPictures ? Answer::Yes : Answer::No;
    } else if (question.buttons != Buttons::YesNo && question.buttons != Buttons::YesNoCancel) {
        answer = Answer::Cancel;
    }
    post([stands = std::move(stands), then = std::move(then), answer] {
        if (stands())
            then(answer);
    });
}

void CliPrompts::askText(const InputBox &, Stands stands, std::function<void(QString)> then)
{
    post([stands = std::move(stands), then = std::move(then)] {
        if (stands())
            then({});
    });
}

void CliPrompts::askFile(const FileDialog &, Stands stands, std::function<void(QString)> then)
{
    post([stands = std::move(stands), then = std::move(then)] {
        if (stands())
            then({});
    });
}

void CliPrompts::post(std::function<void()> answer)
{
    ++m_open;
    QMetaObject::invokeMethod(
        this,
        [this, answer = std::move(answer)] {
            --m_open;
            answer();
        },
        Qt::QueuedConnection);
}

void CliPrompts::whenQuiet(std::function<void()> then)
{
    QMetaObject::invokeMethod(
        this,
        [this, then = std::move(then)] {
            if (m_open > 0)
                whenQuiet(then);
            else
                then();
        },
        Qt::QueuedConnection);
}
