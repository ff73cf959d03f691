// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>

namespace moravel::testing {

/// For a stand-in whose answers come later: when the test delivers them, in order.
class Answers
{
public:
    /// Gives what waits. Returns whether there was anything.
    bool deliver()
    {
        const bool any = !m_waiting.empty();
        while (!m_waiting.empty()) {
            const auto answer = std::move(m_waiting.front());
            m_waiting.pop_front();
            answer();
        }
        return any;
    }

protected:
    void later(std::function<void()> answer) { m_waiting.push_back(std::move(answer)); }

private:
    std::deque<std::function<void()>> m_waiting;
};

} // namespace moravel::testing
