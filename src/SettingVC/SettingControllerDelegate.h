#pragma once

namespace tessivo {

/// The list of events, as the settings know it. Held weakly.
class SettingControllerDelegate {
public:
    virtual ~SettingControllerDelegate() = default;
    /// The user has chosen another card size.
    virtual void reloadEvents() = 0;
};

} // namespace tessivo
