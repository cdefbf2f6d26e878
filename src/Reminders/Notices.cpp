#include "Reminders/Notices.h"

#include <algorithm>

namespace tessivo {
namespace {

constexpr std::size_t linesOfAGroup = 10;
constexpr const char* programName = "Tessivo";

std::string lineOf(const NotificationContent& content) {
    return content.body.empty() ? content.title : content.title + " – " + content.body;
}

} // namespace

Notice noticeOf(const NotificationContent& content) {
    return {content.title.empty() ? programName : content.title, content.body, content.defaultSound};
}

Notice groupedNotice(const QueuedRequests& requests) {
    if (requests.size() == 1)
        return noticeOf(requests.front().request.content);
    Notice notice{programName + (" (" + std::to_string(requests.size()) + ")"), "", false};
    for (std::size_t index = 0; index < requests.size(); ++index) {
        const auto& content = requests[index].request.content;
        notice.sound = notice.sound || content.defaultSound;
        if (index < linesOfAGroup)
            notice.body += (index > 0 ? "\n" : "") + lineOf(content);
    }
    if (requests.size() > linesOfAGroup)
        notice.body += "\n+" + std::to_string(requests.size() - linesOfAGroup);
    return notice;
}

} // namespace tessivo
