#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace tessivo {

/// What went wrong outside the program, in the machine's own words.
struct Error {
    std::string domain;          ///< which part of the machine speaks: "SQLite", "NetworkService"
    int code = 0;                ///< that part's own number
    std::string description;     ///< one sentence, as the console prints it
    std::string failureReason{}; ///< what may lie behind it, where that is known

    friend bool operator==(const Error&, const Error&) = default;
};

/// Success, or an error.
using Outcome = std::optional<Error>;

/// A value, or the error that stands in its place.
template <class Value>
class [[nodiscard]] Result {
public:
    Result(Value value) : state_(std::move(value)) {} // NOLINT(google-explicit-constructor)
    Result(Error error) : state_(std::move(error)) {} // NOLINT(google-explicit-constructor)

    [[nodiscard]] explicit operator bool() const { return std::holds_alternative<Value>(state_); }
    [[nodiscard]] Value& value() { return std::get<Value>(state_); }
    [[nodiscard]] const Value& value() const { return std::get<Value>(state_); }
    [[nodiscard]] const Error& error() const { return std::get<Error>(state_); }

private:
    std::variant<Value, Error> state_;
};

} // namespace tessivo
