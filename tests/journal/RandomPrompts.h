#pragma once

#include "prompts/Prompts.h"

#include <QList>

#include <deque>
#include <random>

/// Keeps boxes open until the test lets one be answered, at random.
class RandomPrompts : public Prompts
{
public:
    std::mt19937 *random = nullptr;
    QStringList files; ///< what file dialogs answer with, or nothing
    std::function<void(Topic, Answer)> onAnswer;

    [[nodiscard]] bool hasOpenBox() const { return !m_open.empty(); }
    void answerOne()
    {
        const auto box = std::move(m_open.front());
        m_open.pop_front();
        box();
    }

    void notice(const Notice &) override {}
    void ask(const Question &question, Stands stands, std::function<void(Answer)> then) override
    {
        m_open.emplace_back([this, topic = question.topic, buttons = question.buttons,
                             stands = std::move(stands), then = std::move(then)] {
            const Answer answer = randomAnswer(buttons);
            if (!stands())
                return;
            onAnswer(topic, answer);
            then(answer);
        });
    }
    void askText(const InputBox &, Stands stands, std::function<void(QString)> then) override
    {
        m_open.emplace_back([stands = std::move(stands), then = std::move(then)] {
            if (stands())
                then({});
        });
    }
    void askFile(const FileDialog &, Stands stands, std::function<void(QString)> then) override
    {
        m_open.emplace_back([this, stands = std::move(stands), then = std::move(then)] {
            const QString name = upTo(4) == 0 ? QString() : files.at(upTo(files.size()));
            if (stands())
                then(name);
        });
    }

private:
    [[nodiscard]] int upTo(qsizetype count) const
    {
        return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(*random);
    }
    Answer randomAnswer(Buttons buttons)
    {
        static const QList<Answer> all[] = {{Answer::Yes, Answer::No},
                                            {Answer::Yes, Answer::No, Answer::Cancel},
                                            {Answer::Ok, Answer::Cancel},
                                            // Oftener on than away.
                                            {Answer::Continue, Answer::Continue, Answer::Continue,
                                             Answer::OpenAsItIs, Answer::Forget, Answer::Cancel},
                                            {Answer::OpenAsItIs, Answer::Forget, Answer::Cancel}};
        const QList<Answer> &offered = all[static_cast<int>(buttons)];
        return offered.at(upTo(offered.size()));
    }

    std::deque<std::function<void()>> m_open;
};
