#include "SettingVC/SettingSection.h"

#include "Ports/Json.h"
#include "Ports/LocalizedTexts.h"
#include "Support/LocalizationVariables.h"

namespace tessivo {
namespace {

SettingItem row(const std::string& title, std::string image, std::string color) {
    return {title, std::move(image), std::move(color), std::nullopt, std::nullopt};
}

} // namespace

std::vector<SettingItem> readApplications(std::string_view text, const JsonCoding& json,
                                          const LocalizedTexts& texts) {
    const auto document = json.parse(text);
    const auto* rows = document ? document.value().as<JsonValue::Array>() : nullptr;
    if (!rows)
        return {};
    std::vector<SettingItem> items;
    for (const JsonValue& application : *rows) {
        const auto field = [&application](std::string_view key) {
            const JsonValue* value = application.find(key);
            return value ? value->as<std::string>() : nullptr;
        };
        const auto* title = field("title");
        const auto* subTitle = field("subTitle");
        const auto* image = field("image");
        const auto* id = field("id");
        if (!title || !subTitle || !image || !id)
            return {};
        items.push_back(
            {texts.localizedString(*title), *image, std::nullopt, texts.localizedString(*subTitle), *id});
    }
    return items;
}

std::vector<SettingSection> makeSettingSections(const LocalizationVariables& texts,
                                                std::vector<SettingItem> applications) {
    using Kind = SettingSection::Kind;
    return {
        {Kind::ourApplications, std::move(applications)},
        {Kind::feedback,
         {row(texts.eventSize, "EventSize", "FAQ"), row(texts.defaultScreen, "defaultScreen", "premium")}},
        {Kind::other, {row(texts.rateUs, "star", "rate"), row(texts.shareTheApp, "shareTheApp", "share")}},
        {Kind::publicDocuments,
         {row(texts.support, "support", "privacy"), row(texts.termsOfUse, "termsOfUse", "terms"),
          row(texts.privacyPolicy, "privacyPolicy", "privacy")}}};
}

} // namespace tessivo
