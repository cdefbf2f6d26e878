#pragma once

#include <array>
#include <string>

namespace tessivo {

class LocalizationVariables;

/// The slides of the tour, in order.
enum class OnboardingSlide { firstSlide, secondSlide, thirdSlide };

inline constexpr std::array onboardingSlides{OnboardingSlide::firstSlide, OnboardingSlide::secondSlide,
                                             OnboardingSlide::thirdSlide};

/// The name of the slide's picture among the resources.
[[nodiscard]] std::string imageOf(OnboardingSlide slide);
[[nodiscard]] const std::string& textOf(OnboardingSlide slide, const LocalizationVariables& texts);

} // namespace tessivo
