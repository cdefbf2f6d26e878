#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessivo {

class JsonCoding;
class LocalizationVariables;
class LocalizedTexts;

/// One row of the settings. `image` names a picture of the resources, `color` the ground that it stands on.
struct SettingItem {
    std::string title;
    std::optional<std::string> image;
    std::optional<std::string> color;
    std::optional<std::string> subTitle;
    std::optional<std::string> id; ///< of another program in the store
};

/// The rows under one heading. The kind decides how they look and what they do.
struct SettingSection {
    enum class Kind { ourApplications, feedback, other, publicDocuments };

    Kind kind;
    std::vector<SettingItem> items;
};

/// The rows of `ourApplications`, from a JSON list of objects whose `title` and `subTitle` are keys of the
/// text tables. Empty for text that is no such list.
[[nodiscard]] std::vector<SettingItem> readApplications(std::string_view text, const JsonCoding& json,
                                                        const LocalizedTexts& texts);

/// All sections in the order of the list.
[[nodiscard]] std::vector<SettingSection> makeSettingSections(const LocalizationVariables& texts,
                                                              std::vector<SettingItem> applications);

} // namespace tessivo
