#pragma once

#include "Interface/ViewController.h"

namespace tessivo {

/// A screen with nothing on it.
class PlainScreen final : public ui::ViewController {
public:
    using ViewController::ViewController;
    [[nodiscard]] std::string screenName() const override { return "PlainScreen"; }
};

} // namespace tessivo
