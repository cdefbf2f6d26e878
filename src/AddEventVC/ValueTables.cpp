#include "AddEventVC/ValueTables.h"

#include "Ports/LocalizedTexts.h"

#include <initializer_list>
#include <string_view>

namespace tessivo {
namespace {

std::vector<std::string> localized(const LocalizedTexts& texts,
                                   std::initializer_list<std::string_view> titles) {
    std::vector<std::string> shown;
    for (const std::string_view title : titles)
        shown.push_back(texts.localizedString(title));
    return shown;
}

} // namespace

std::vector<std::string> dayRepeatTitles(const LocalizedTexts& texts) {
    return localized(texts,
                     {"Never", "Every day", "Every week", "Every 2 weeks", "Every month", "Every year"});
}

std::vector<std::string> repeatTitles(const LocalizedTexts& texts) {
    return localized(texts, {"Every day", "Every week", "Every 2 weeks", "Every month", "Every year"});
}

std::vector<std::string> alertTitles(const LocalizedTexts& texts) {
    return localized(texts, {"At time of event", "5 minutes before", "10 minutes before", "15 minutes before",
                             "30 minutes before", "1 hour before", "2 hours before", "1 day before",
                             "2 days before", "1 week before"});
}

} // namespace tessivo
