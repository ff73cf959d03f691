// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <deque>
#include <functional>
#include <memory>

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

/// A handle that calls back when it goes.
template <typename Handle>
class AtEnd : public Handle
{
public:
    explicit AtEnd(std::function<void()> end) : m_end(std::move(end)) { }

    ~AtEnd() override { m_end(); }

    Q_DISABLE_COPY_MOVE(AtEnd)

private:
    std::function<void()> m_end;
};

} // namespace moravel::testing
