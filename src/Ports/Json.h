#pragma once

#include "Ports/Error.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tessivo {

/// A JSON document as a tree of plain values. Numbers without a fraction or an exponent that fit are
/// integers, others are doubles.
class JsonValue {
public:
    struct Member;
    using Array = std::vector<JsonValue>;
    using Object = std::vector<Member>;
    using Value = std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, Array, Object>;

    JsonValue();
    JsonValue(Value held); // NOLINT(google-explicit-constructor)
    JsonValue(const JsonValue& other);
    JsonValue(JsonValue&& other) noexcept;
    JsonValue& operator=(const JsonValue& other);
    JsonValue& operator=(JsonValue&& other) noexcept;
    ~JsonValue();

    /// The value as a `Kind`; null where it is of another kind.
    template <class Kind>
    [[nodiscard]] const Kind* as() const {
        return std::get_if<Kind>(&value);
    }
    [[nodiscard]] bool isNull() const { return std::holds_alternative<std::nullptr_t>(value); }

    /// The value that an object has under `key`, the last one where the key comes several times; null where
    /// there is none or this is no object.
    [[nodiscard]] const JsonValue* find(std::string_view key) const;

    Value value;
};

struct JsonValue::Member {
    std::string key;
    JsonValue value;
};

// The tree's own type must be whole before its values can be made.
inline JsonValue::JsonValue() = default;
inline JsonValue::JsonValue(Value held) : value(std::move(held)) {}
inline JsonValue::JsonValue(const JsonValue& other) = default;
inline JsonValue::JsonValue(JsonValue&& other) noexcept = default;
inline JsonValue& JsonValue::operator=(const JsonValue& other) = default;
inline JsonValue& JsonValue::operator=(JsonValue&& other) noexcept = default;
inline JsonValue::~JsonValue() = default;

inline const JsonValue* JsonValue::find(std::string_view key) const {
    const auto* members = as<Object>();
    if (!members)
        return nullptr;
    for (auto member = members->rbegin(); member != members->rend(); ++member) {
        if (member->key == key)
            return &member->value;
    }
    return nullptr;
}

/// JSON text and back. Pure, any thread.
class JsonCoding {
public:
    virtual ~JsonCoding() = default;

    /// Reads one document. Text that is not JSON, not UTF-8, or nested too deeply to be meant is an error.
    [[nodiscard]] virtual Result<JsonValue> parse(std::string_view text) const = 0;

    [[nodiscard]] virtual std::string write(const JsonValue& value) const = 0;
};

} // namespace tessivo
