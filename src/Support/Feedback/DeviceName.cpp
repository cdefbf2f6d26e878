#include "Support/Feedback/DeviceName.h"

#include "Ports/Device.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>

namespace tessivo {
namespace {

/// The models from `family` + `first` to `family` + `last`.
struct Model {
    std::string_view family;
    int first;
    int last;
    std::string_view name;
};

constexpr Model models[] = {
    {"iPod5,", 1, 1, "iPod touch (5th generation)"},
    {"iPod7,", 1, 1, "iPod touch (6th generation)"},
    {"iPod9,", 1, 1, "iPod touch (7th generation)"},
    {"iPhone3,", 1, 3, "iPhone 4"},
    {"iPhone4,", 1, 1, "iPhone 4s"},
    {"iPhone5,", 1, 2, "iPhone 5"},
    {"iPhone5,", 3, 4, "iPhone 5c"},
    {"iPhone6,", 1, 2, "iPhone 5s"},
    {"iPhone7,", 1, 1, "iPhone 6 Plus"},
    {"iPhone7,", 2, 2, "iPhone 6"},
    {"iPhone8,", 1, 1, "iPhone 6s"},
    {"iPhone8,", 2, 2, "iPhone 6s Plus"},
    {"iPhone8,", 4, 4, "iPhone SE"},
    {"iPhone9,", 1, 1, "iPhone 7"},
    {"iPhone9,", 2, 2, "iPhone 7 Plus"},
    {"iPhone9,", 3, 3, "iPhone 7"},
    {"iPhone9,", 4, 4, "iPhone 7 Plus"},
    {"iPhone10,", 1, 1, "iPhone 8"},
    {"iPhone10,", 2, 2, "iPhone 8 Plus"},
    {"iPhone10,", 3, 3, "iPhone X"},
    {"iPhone10,", 4, 4, "iPhone 8"},
    {"iPhone10,", 5, 5, "iPhone 8 Plus"},
    {"iPhone10,", 6, 6, "iPhone X"},
    {"iPhone11,", 2, 2, "iPhone XS"},
    {"iPhone11,", 4, 4, "iPhone XS Max"},
    {"iPhone11,", 6, 6, "iPhone XS Max"},
    {"iPhone11,", 8, 8, "iPhone XR"},
    {"iPhone12,", 1, 1, "iPhone 11"},
    {"iPhone12,", 3, 3, "iPhone 11 Pro"},
    {"iPhone12,", 5, 5, "iPhone 11 Pro Max"},
    {"iPhone12,", 8, 8, "iPhone SE (2nd generation)"},
    {"iPhone13,", 1, 1, "iPhone 12 mini"},
    {"iPhone13,", 2, 2, "iPhone 12"},
    {"iPhone13,", 3, 3, "iPhone 12 Pro"},
    {"iPhone13,", 4, 4, "iPhone 12 Pro Max"},
    {"iPhone14,", 2, 2, "iPhone 13 Pro"},
    {"iPhone14,", 3, 3, "iPhone 13 Pro Max"},
    {"iPhone14,", 4, 4, "iPhone 13 mini"},
    {"iPhone14,", 5, 5, "iPhone 13"},
    {"iPhone14,", 6, 6, "iPhone SE (3rd generation)"},
    {"iPhone14,", 7, 7, "iPhone 14"},
    {"iPhone14,", 8, 8, "iPhone 14 Plus"},
    {"iPhone15,", 2, 2, "iPhone 14 Pro"},
    {"iPhone15,", 3, 3, "iPhone 14 Pro Max"},
    {"iPad2,", 1, 4, "iPad 2"},
    {"iPad2,", 5, 7, "iPad mini"},
    {"iPad3,", 1, 3, "iPad (3rd generation)"},
    {"iPad3,", 4, 6, "iPad (4th generation)"},
    {"iPad4,", 1, 3, "iPad Air"},
    {"iPad4,", 4, 6, "iPad mini 2"},
    {"iPad4,", 7, 9, "iPad mini 3"},
    {"iPad5,", 1, 2, "iPad mini 4"},
    {"iPad5,", 3, 4, "iPad Air 2"},
    {"iPad6,", 3, 4, "iPad Pro (9.7-inch)"},
    {"iPad6,", 7, 8, "iPad Pro (12.9-inch) (1st generation)"},
    {"iPad6,", 11, 12, "iPad (5th generation)"},
    {"iPad7,", 1, 2, "iPad Pro (12.9-inch) (2nd generation)"},
    {"iPad7,", 3, 4, "iPad Pro (10.5-inch)"},
    {"iPad7,", 5, 6, "iPad (6th generation)"},
    {"iPad7,", 11, 12, "iPad (7th generation)"},
    {"iPad8,", 1, 4, "iPad Pro (11-inch) (1st generation)"},
    {"iPad8,", 5, 8, "iPad Pro (12.9-inch) (3rd generation)"},
    {"iPad8,", 9, 10, "iPad Pro (11-inch) (2nd generation)"},
    {"iPad8,", 11, 12, "iPad Pro (12.9-inch) (4th generation)"},
    {"iPad11,", 1, 2, "iPad mini (5th generation)"},
    {"iPad11,", 3, 4, "iPad Air (3rd generation)"},
    {"iPad11,", 6, 7, "iPad (8th generation)"},
    {"iPad12,", 1, 2, "iPad (9th generation)"},
    {"iPad13,", 1, 2, "iPad Air (4th generation)"},
    {"iPad13,", 4, 7, "iPad Pro (11-inch) (3rd generation)"},
    {"iPad13,", 8, 11, "iPad Pro (12.9-inch) (5th generation)"},
    {"iPad13,", 16, 17, "iPad Air (5th generation)"},
    {"iPad13,", 18, 19, "iPad (10th generation)"},
    {"iPad14,", 1, 2, "iPad mini (6th generation)"},
    {"iPad14,", 3, 4, "iPad Pro (11-inch) (4th generation)"},
    {"iPad14,", 5, 6, "iPad Pro (12.9-inch) (6th generation)"},
    {"AppleTV5,", 3, 3, "Apple TV"},
    {"AppleTV6,", 2, 2, "Apple TV 4K"},
    {"AudioAccessory1,", 1, 1, "HomePod"},
    {"AudioAccessory5,", 1, 1, "HomePod mini"},
};

/// The whole of `digits` as a number written without leading zeros.
std::optional<int> number(std::string_view digits) {
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size() || digits.front() == '0')
        return std::nullopt;
    return value;
}

std::string modelName(const std::string& identifier) {
    const std::size_t comma = identifier.find(',');
    if (comma == std::string::npos)
        return identifier;
    const std::string_view family = std::string_view(identifier).substr(0, comma + 1);
    const auto minor = number(std::string_view(identifier).substr(comma + 1));
    const auto* const found = std::ranges::find_if(models, [&](const Model& model) {
        return minor && model.family == family && model.first <= *minor && *minor <= model.last;
    });
    return found == std::end(models) ? identifier : std::string(found->name);
}

} // namespace

std::string deviceName(const Device& device) {
    constexpr std::array simulators{"i386", "x86_64", "arm64"};
    const std::string identifier = device.modelIdentifier();
    if (std::ranges::find(simulators, identifier) == simulators.end())
        return modelName(identifier);
    return "Simulator " + modelName(device.simulatedModelIdentifier().value_or(identifier));
}

} // namespace tessivo
