#pragma once

#include "books/Refusal.h"
#include "data/Assert.h"

#include <utility>
#include <variant>

namespace orvane {

/// What a rule gives: a value, or the reason why there is none.
template <typename T>
class Given {
public:
    Given(T value) : m_content(std::move(value)) {} // NOLINT: implicit on purpose
    Given(Refusal refusal) : m_content(refusal) {}  // NOLINT: implicit on purpose

    explicit operator bool() const { return std::holds_alternative<T>(m_content); }
    const T& operator*() const {
        ORVANE_ASSERT(*this);
        return std::get<T>(m_content);
    }
    const T* operator->() const { return &**this; }
    Refusal refusal() const {
        ORVANE_ASSERT(!*this);
        return std::get<Refusal>(m_content);
    }

private:
    std::variant<T, Refusal> m_content;
};

/// The value of a step that has nothing more to tell.
struct Saved {};

} // namespace orvane
