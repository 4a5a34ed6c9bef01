#pragma once

#include "prompts/LoginPrompt.h"

#include <QList>
#include <QTest>

#include <algorithm>
#include <deque>

/// Somebody who can be asked for a login, and who answers when the test says so.
class FakeLoginPrompt : public LoginPrompt
{
public:
    void askLogin(const LoginBox &box, Stands stands,
                  std::function<void(std::optional<LoginEntry>)> then) override
    {
        boxes.append(box);
        m_open.push_back({std::move(stands), std::move(then)});
    }

    void closeStale() override
    {
        std::erase_if(m_open, [](const Open &open) { return !open.stands(); });
    }

    /// The boxes that need an answer still.
    [[nodiscard]] int openBoxes() const
    {
        return static_cast<int>(std::count_if(m_open.begin(), m_open.end(),
                                              [](const Open &open) { return open.stands(); }));
    }
    /// The boxes that were neither answered nor closed.
    [[nodiscard]] int boxesLeft() const { return static_cast<int>(m_open.size()); }
    /// Answers the box that has been open longest; nothing is Cancel.
    void answer(const std::optional<LoginEntry> &entry)
    {
        if (m_open.empty()) {
            QTest::qFail("nobody is asked for a login", __FILE__, __LINE__);
            return;
        }
        const Open open = std::move(m_open.front());
        m_open.pop_front();
        if (open.stands())
            open.then(entry);
    }

    QList<LoginBox> boxes; ///< as they were shown

private:
    struct Open
    {
        Stands stands;
        std::function<void(std::optional<LoginEntry>)> then;
    };

    std::deque<Open> m_open;
};
