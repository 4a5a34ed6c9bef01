#include "support/ScriptedPrompts.h"

#include <QTest>

namespace {

QString nameOf(Topic topic)
{
    return QStringLiteral("question %1").arg(static_cast<int>(topic));
}

bool isOffered(Buttons buttons, Answer answer)
{
    switch (buttons) {
    case Buttons::YesNo:
        return answer == Answer::Yes || answer == Answer::No;
    case Buttons::YesNoCancel:
        return answer == Answer::Yes || answer == Answer::No || answer == Answer::Cancel;
    case Buttons::OkCancel:
        return answer == Answer::Ok || answer == Answer::Cancel;
    case Buttons::ContinueOpenForget:
        return answer == Answer::Continue || answer == Answer::OpenAsItIs ||
               answer == Answer::Forget || answer == Answer::Cancel;
    case Buttons::OpenForget:
        return answer == Answer::OpenAsItIs || answer == Answer::Forget || answer == Answer::Cancel;
    }
    return false;
}

} // namespace

ScriptedPrompts::~ScriptedPrompts()
{
    if (!m_script.empty())
        QTest::qFail("an answer of the script was never asked for", __FILE__, __LINE__);
}

void ScriptedPrompts::expectAnswer(Topic topic, Answer answer)
{
    m_script.push_back({nameOf(topic), {}, answer});
}

void ScriptedPrompts::expectText(const QString &prompt, const QString &answer)
{
    m_script.push_back({prompt, answer});
}

void ScriptedPrompts::expectFile(const QString &title, const QString &answer)
{
    m_script.push_back({title, answer});
}

QList<Notice> ScriptedPrompts::takeNotices()
{
    return std::exchange(m_notices, {});
}

QStringList ScriptedPrompts::takeNoticeTexts()
{
    QStringList texts;
    for (const Notice &notice : takeNotices())
        texts.append(notice.text);
    return texts;
}

void ScriptedPrompts::answerOne()
{
    if (m_open.empty()) {
        QTest::qFail("no box is open", __FILE__, __LINE__);
        return;
    }
    const auto box = std::move(m_open.front());
    m_open.pop_front();
    box();
}

void ScriptedPrompts::answerAll()
{
    while (!m_open.empty())
        answerOne();
}

void ScriptedPrompts::notice(const Notice &notice)
{
    m_notices.append(notice);
}

QString ScriptedPrompts::nextAnswer(const QString &box, Answer *answer)
{
    if (m_script.empty() || m_script.front().box != box) {
        const QString expected = m_script.empty() ? QStringLiteral("none") : m_script.front().box;
        const QString text = QStringLiteral("unexpected box: %1; expected: %2").arg(box, expected);
        QTest::qFail(qPrintable(text), __FILE__, __LINE__);
        if (answer != nullptr)
            *answer = Answer::Cancel;
        return {};
    }
    const Line line = m_script.front();
    m_script.pop_front();
    if (answer != nullptr)
        *answer = line.answer;
    return line.text;
}

void ScriptedPrompts::ask(const Question &question, Stands stands, std::function<void(Answer)> then)
{
    questions.append(question);
    m_open.emplace_back([this, question, stands = std::move(stands), then = std::move(then)] {
        Answer answer = Answer::Cancel;
        nextAnswer(nameOf(question.topic), &answer);
        if (!isOffered(question.buttons, answer))
            QTest::qFail("the answer is not on offer", __FILE__, __LINE__);
        else if (stands())
            then(answer);
    });
}

void ScriptedPrompts::askText(const InputBox &box, Stands stands, std::function<void(QString)> then)
{
    inputBoxes.append(box);
    m_open.emplace_back([this, box, stands = std::move(stands), then = std::move(then)] {
        const QString answer = nextAnswer(box.prompt);
        if (stands())
            then(answer);
    });
}

void ScriptedPrompts::askFile(const FileDialog &dialog, Stands stands,
                              std::function<void(QString)> then)
{
    fileDialogs.append(dialog);
    m_open.emplace_back([this, dialog, stands = std::move(stands), then = std::move(then)] {
        const QString answer = nextAnswer(dialog.title);
        if (stands())
            then(answer);
    });
}
