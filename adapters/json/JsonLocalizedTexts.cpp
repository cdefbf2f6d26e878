#include "json/JsonLocalizedTexts.h"

namespace tessivo {

Result<JsonLocalizedTexts> JsonLocalizedTexts::fromJson(std::string_view json) {
    auto table = readTextTable(json);
    if (!table)
        return table.error();
    return JsonLocalizedTexts(std::move(table.value()));
}

std::string JsonLocalizedTexts::localizedString(std::string_view key) const {
    const auto found = texts_.find(key);
    return found == texts_.end() ? std::string(key) : found->second;
}

} // namespace tessivo
