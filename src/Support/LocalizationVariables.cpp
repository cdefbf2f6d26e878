#include "Support/LocalizationVariables.h"

#include "Ports/LocalizedTexts.h"

namespace tessivo {

LocalizationVariables::LocalizationVariables(const LocalizedTexts& texts)
    : firstOnBoardingHeader(texts.localizedString("firstOnBoardingHeader")),
      secondOnBoardingHeader(texts.localizedString("secondOnBoardingHeader")),
      thirdOnBoardingHeader(texts.localizedString("thirdOnBoardingHeader")),
      continueOnBoarding(texts.localizedString("continueOnBoarding")),
      settingTermsOfUse(texts.localizedString("settingTermsOfUse")),
      settingPrivacyPolicy(texts.localizedString("settingPrivacyPolicy")),
      and_(texts.localizedString("and")),
      alertOk(texts.localizedString("alertOk")),
      alertYes(texts.localizedString("alertYes")),
      alertNo(texts.localizedString("alertNo")),
      alertRate(texts.localizedString("alertRate")),
      setting(texts.localizedString("setting")),
      share(texts.localizedString("share")),
      shareTheApp(texts.localizedString("shareTheApp")),
      termsOfUse(texts.localizedString("termsOfUse")),
      privacyPolicy(texts.localizedString("privacyPolicy")),
      rateUs(texts.localizedString("rateUs")),
      eventSize(texts.localizedString("eventSize")),
      defaultScreen(texts.localizedString("defaultScreen")),
      support(texts.localizedString("support")),
      ourApplications(texts.localizedString("ourApplications")),
      addEvent(texts.localizedString("addEvent")),
      addTitle(texts.localizedString("addTitle")),
      dateOfEvent(texts.localizedString("dateOfEvent")),
      yourEventTitle(texts.localizedString("yourEventTitle")),
      eventTitle(texts.localizedString("eventTitle")),
      days(texts.localizedString("days")),
      inACertain(texts.localizedString("inACertain")),
      next(texts.localizedString("next")),
      done(texts.localizedString("done")) {}

} // namespace tessivo
