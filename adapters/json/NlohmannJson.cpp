#include "json/NlohmannJson.h"

#include "json/TextTable.h"

#include <nlohmann/json.hpp>

#include <limits>
#include <type_traits>

namespace tessivo {
namespace {

using nlohmann::json;

/// Values are trees that are walked and dropped by recursion: a deeper document could end the stack.
constexpr std::size_t maximumDepth = 512;

constexpr std::size_t usualMembers = 8; // most objects then never move what they hold

/// Builds the tree as the parser meets its parts, so that no second tree is made.
class TreeBuilder final : public json::json_sax_t {
public:
    [[nodiscard]] JsonValue& root() { return root_; }
    [[nodiscard]] const std::string& fault() const { return fault_; }

    bool null() override { return put(JsonValue()); }
    bool boolean(bool value) override { return put(JsonValue(value)); }
    bool number_integer(number_integer_t value) override { return put(JsonValue(value)); }
    bool number_unsigned(number_unsigned_t value) override {
        if (value > static_cast<number_unsigned_t>(std::numeric_limits<std::int64_t>::max()))
            return put(JsonValue(static_cast<double>(value)));
        return put(JsonValue(static_cast<std::int64_t>(value)));
    }
    bool number_float(number_float_t value, const string_t&) override { return put(JsonValue(value)); }
    bool string(string_t& value) override { return put(JsonValue(std::move(value))); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override {
        JsonValue::Object members;
        members.reserve(usualMembers);
        return open(JsonValue(std::move(members)));
    }
    bool start_array(std::size_t) override { return open(JsonValue(JsonValue::Array())); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t& key) override {
        std::get<JsonValue::Object>(open_.back()->value).push_back({std::move(key), {}});
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const json::exception& error) override {
        fault_ = error.what();
        return false;
    }

private:
    bool put(JsonValue value) {
        place(std::move(value));
        return true;
    }

    bool open(JsonValue value) {
        if (open_.size() == maximumDepth) {
            fault_ = "The document is nested too deeply.";
            return false;
        }
        open_.push_back(&place(std::move(value)));
        return true;
    }

    bool close() {
        open_.pop_back();
        return true;
    }

    /// Open values do not move: only the innermost one grows.
    JsonValue& place(JsonValue value) {
        if (open_.empty())
            return root_ = std::move(value);
        if (auto* array = std::get_if<JsonValue::Array>(&open_.back()->value))
            return array->emplace_back(std::move(value));
        return std::get<JsonValue::Object>(open_.back()->value).back().value = std::move(value);
    }

    JsonValue root_;
    std::vector<JsonValue*> open_;
    std::string fault_;
};

json toJson(const JsonValue& value) {
    return std::visit(
        [](const auto& held) -> json {
            using Held = std::remove_cvref_t<decltype(held)>;
            if constexpr (std::is_same_v<Held, JsonValue::Array>) {
                json array = json::array();
                for (const auto& element : held)
                    array.push_back(toJson(element));
                return array;
            } else if constexpr (std::is_same_v<Held, JsonValue::Object>) {
                json object = json::object();
                for (const auto& member : held)
                    object[member.key] = toJson(member.value);
                return object;
            } else {
                return held;
            }
        },
        value.value);
}

} // namespace

Result<JsonValue> NlohmannJson::parse(std::string_view text) const {
    TreeBuilder builder;
    if (!json::sax_parse(text, &builder))
        return jsonError(builder.fault());
    return std::move(builder.root());
}

std::string NlohmannJson::write(const JsonValue& value) const {
    return toJson(value).dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace tessivo
