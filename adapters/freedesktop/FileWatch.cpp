#include "freedesktop/FileWatch.h"

#include "freedesktop/EventLoop.h"

#include <sys/inotify.h>

#include <memory>
#include <string>
#include <utility>

namespace tessivo::freedesktop {
namespace {

struct Watch {
    std::string name;
    std::function<void()> changed;
    Owned<sd_event_source> source;
};

int folderChanged(sd_event_source*, const inotify_event* event, void* data) {
    const auto* watch = static_cast<Watch*>(data);
    if (event->len > 0 && watch->name == event->name) {
        const auto changed = watch->changed; // a copy: what it does may end the watch
        changed();
    }
    return 0;
}

} // namespace

Subscription watchFile(EventLoop& loop, const std::filesystem::path& file, std::function<void()> changed) {
    auto watch = std::make_shared<Watch>();
    watch->name = file.filename().string();
    watch->changed = std::move(changed);
    // A link is complete when it is made and is never closed; a file is complete when it is closed.
    const std::uint32_t complete = IN_MOVED_TO | IN_CLOSE_WRITE;
    const std::uint32_t events = std::filesystem::is_symlink(file) ? complete | IN_CREATE : complete;
    take(watch->source, [&](auto made) {
        return sd_event_add_inotify(loop.handle(), made, file.parent_path().c_str(), events, folderChanged,
                                    watch.get());
    });
    return Subscription([watch = std::move(watch)]() mutable { watch.reset(); });
}

} // namespace tessivo::freedesktop
