#include "AddEventVC/ValueTables.h"

namespace tessivo {

const std::vector<std::string>& dayRepeatTitles() {
    static const std::vector<std::string> titles{"Never",         "Every day",   "Every week",
                                                 "Every 2 weeks", "Every month", "Every year"};
    return titles;
}

const std::vector<std::string>& repeatTitles() {
    static const std::vector<std::string> titles{"Every day", "Every week", "Every 2 weeks", "Every month",
                                                 "Every year"};
    return titles;
}

const std::vector<std::string>& alertTitles() {
    static const std::vector<std::string> titles{
        "At time of event", "5 minutes before", "10 minutes before", "15 minutes before", "30 minutes before",
        "1 hour before",    "2 hours before",   "1 day before",      "2 days before",     "1 week before"};
    return titles;
}

} // namespace tessivo
