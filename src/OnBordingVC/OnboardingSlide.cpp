#include "OnBordingVC/OnboardingSlide.h"

#include "Support/LocalizationVariables.h"

namespace tessivo {

std::string imageOf(OnboardingSlide slide) {
    return "onimage" + std::to_string(static_cast<int>(slide) + 1);
}

const std::string& textOf(OnboardingSlide slide, const LocalizationVariables& texts) {
    switch (slide) {
    case OnboardingSlide::firstSlide:
        return texts.firstOnBoardingHeader;
    case OnboardingSlide::secondSlide:
        return texts.secondOnBoardingHeader;
    case OnboardingSlide::thirdSlide:
        break;
    }
    return texts.thirdOnBoardingHeader;
}

} // namespace tessivo
