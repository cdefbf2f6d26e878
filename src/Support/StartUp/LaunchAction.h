#pragma once

#include <string_view>

namespace tessivo {

class SharedServices;

namespace ui {
class PresentationStack;
}

/// Does what the desktop asks of the program by name: "show-event" brings the event whose identifier is
/// `parameter` into view, in the list that holds it; "new-event" opens the wizard. Only the lists answer:
/// over them something may be half written, which stays. An unknown name or event changes nothing. Main
/// thread.
void performLaunchAction(std::string_view name, std::string_view parameter, SharedServices& services,
                         ui::PresentationStack& stack);

} // namespace tessivo
