#pragma once

#include "Interface/ControlRegistry.h"
#include "Interface/ImageView.h"
#include "Interface/Label.h"
#include "Interface/MainScreen.h"
#include "Interface/View.h"

#include <string>

namespace tessivo {

/// The card that previews an event on the screens on which it is made or changed: a rounded, clipped view
/// with the count, the title with the date, and a picture under them.
class PreviewView : public ui::View {
public:
    /// The names under which the parts enter the registry.
    struct Names {
        std::string view;
        std::string timeLabel;
        std::string eventInformationLabel;
        std::string photoView;
    };

    PreviewView(ui::ControlRegistry& registry, const Names& names);

    ui::Label timeLabel;
    ui::Label eventInformationLabel;
    ui::ImageView photoView;

    /// The card's size on a screen: its width less a margin on each side.
    [[nodiscard]] static ui::Size sizeOn(const ui::MainScreen& screen);
};

} // namespace tessivo
