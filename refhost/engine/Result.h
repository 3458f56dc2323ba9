#pragma once

#include "refhost/engine/Problem.h"

#include <utility>
#include <variant>

/// A value, or the problem that stands in its way.
template <typename T>
class Result
{
public:
    Result(T value)
        : m_content(std::move(value))
    {
    }
    Result(Problem problem)
        : m_content(std::move(problem))
    {
    }

    /// Whether there is a value.
    explicit operator bool() const { return std::holds_alternative<T>(m_content); }

    /// The value; only when there is one.
    T &value() { return std::get<T>(m_content); }
    const T &value() const { return std::get<T>(m_content); }

    /// The problem; only when there is no value.
    const Problem &problem() const { return std::get<Problem>(m_content); }

private:
    std::variant<T, Problem> m_content;
};
