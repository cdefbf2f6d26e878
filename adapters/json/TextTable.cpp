#include "json/TextTable.h"

#include <nlohmann/json.hpp>

#include <set>

namespace tessivo {
namespace {

using nlohmann::json;

/// The first name of the outermost object that comes twice; later values would silently win.
class NamesOnce {
public:
    bool operator()(int depth, json::parse_event_t event, json& parsed) {
        if (event == json::parse_event_t::key && depth == 1 && twice_.empty()) {
            const auto& name = parsed.get_ref<const std::string&>();
            if (!seen_.insert(name).second)
                twice_ = name;
        }
        return true;
    }

    [[nodiscard]] const std::string& twice() const { return twice_; }

private:
    std::set<std::string> seen_;
    std::string twice_;
};

} // namespace

Error jsonError(std::string description) {
    return {.domain = "JSON", .code = 0, .description = std::move(description)};
}

Result<TextTable> readTextTable(std::string_view bytes) {
    NamesOnce names;
    json document;
    try {
        document = json::parse(bytes, std::ref(names));
    } catch (const json::exception& error) {
        return jsonError(error.what());
    }
    if (!document.is_object())
        return jsonError("The table is no JSON object.");
    if (!names.twice().empty())
        return jsonError("\"" + names.twice() + "\" appears twice in the table.");

    TextTable table;
    for (const auto& [name, value] : document.items()) {
        if (!value.is_string())
            return jsonError("\"" + name + "\" is no text.");
        table.emplace(name, value.get<std::string>());
    }
    return table;
}

} // namespace tessivo
