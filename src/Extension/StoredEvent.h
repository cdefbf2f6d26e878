#pragma once

#include "AddEventVC/Palette.h"
#include "Event/CounterText.h"
#include "Ports/DateFormatter.h"

#include <memory>
#include <string>
#include <variant>

namespace tessivo {

class EventCoreData;
class SharedServices;
struct Platform;

namespace ui {
class ImageView;
struct Size;
class View;
} // namespace ui

/// A photo of the user's, by its address.
struct PhotoBackground {
    std::string photoPath;
};

/// A picture of the photo service, by the address under whose last name it is kept.
struct UnsplashBackground {
    std::string unsplashPath;
};

/// What stands behind an event.
using EventBackground = std::variant<ColorItem, GradientItem, PhotoBackground, UnsplashBackground>;

/// Reads what a drawing of a stored event needs of its row. What the row lacks, and a date that cannot be
/// parsed in the device's present language, stops the program.
class StoredEvent final {
public:
    /// The ports outlive it.
    explicit StoredEvent(const Platform& platform);

    [[nodiscard]] const std::string& title(const EventCoreData& row) const;
    [[nodiscard]] const std::string& dateText(const EventCoreData& row) const;
    [[nodiscard]] Instant date(const EventCoreData& row) const;
    /// Empty for a unit that does not exist; that prints "nul".
    [[nodiscard]] std::optional<CounterText> counter(const EventCoreData& row, Instant now,
                                                     const UnitWords& words) const;
    /// The one effective background: a colour, else a gradient, else a photo, else a kept picture.
    [[nodiscard]] EventBackground background(const EventCoreData& row) const;

private:
    [[nodiscard]] const std::string& present(const std::optional<std::string>& text, const char* what) const;

    Console& console_;
    const LocalizedTexts& texts_;
    std::unique_ptr<DateFormatter> eventFormatter;
    std::unique_ptr<DateFormatter> dateFormatter;
};

/// Shows `background` on `view`: a colour as its own, a gradient as a layer of `size` points behind all
/// others, a picture in `image`, which shows nothing else. A photo comes later, also when `image` is to show
/// another event by then.
void showBackground(const EventBackground& background, ui::View& view, ui::ImageView& image, ui::Size size,
                    SharedServices& services);

} // namespace tessivo
