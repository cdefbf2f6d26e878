#pragma once

#include <string>

namespace tessivo {

class LocalizedTexts;

/// The texts that the user sees, each under its key in the text tables; a text that the device's language
/// lacks is the key itself.
class LocalizationVariables final {
public:
    explicit LocalizationVariables(const LocalizedTexts& texts);

    const std::string firstOnBoardingHeader;
    const std::string secondOnBoardingHeader;
    const std::string thirdOnBoardingHeader;
    const std::string continueOnBoarding;
    const std::string settingTermsOfUse;
    const std::string settingPrivacyPolicy;
    const std::string and_; ///< under the key "and", which the language keeps for itself
    const std::string alertOk;
    const std::string alertYes;
    const std::string alertNo;
    const std::string alertRate;
    const std::string setting;
    const std::string share;
    const std::string shareTheApp;
    const std::string termsOfUse;
    const std::string privacyPolicy;
    const std::string rateUs;
    const std::string eventSize;
    const std::string defaultScreen;
    const std::string support;
    const std::string ourApplications;
    const std::string addEvent;
    const std::string addTitle;
    const std::string dateOfEvent;
    const std::string yourEventTitle;
    const std::string eventTitle;
    const std::string days;
    const std::string inACertain;
    const std::string next;
    const std::string done;
};

} // namespace tessivo
