#pragma once

#include "Ports/Subscription.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessivo::ui {

/// Calls any number of subscribers, in the order of subscription. A subscriber may leave, or others join,
/// during a call; new ones get the next call. The signal may be destroyed before its subscriptions. One
/// thread.
template <class... Arguments>
class Signal {
public:
    using Slot = std::function<void(Arguments...)>;

    Subscription subscribe(Slot slot) {
        add(std::move(slot));
        return Subscription([identifier = state_->lastIdentifier, weak = std::weak_ptr(state_)] {
            if (const auto state = weak.lock())
                state->leave(identifier);
        });
    }

    /// Subscribes for as long as the signal lives.
    void add(Slot slot) {
        state_->slots.emplace_back(++state_->lastIdentifier, std::make_shared<Slot>(std::move(slot)));
    }

    [[nodiscard]] bool hasSubscribers() const {
        return std::ranges::any_of(state_->slots, [](const auto& slot) { return slot.second != nullptr; });
    }

    void emit(Arguments... arguments) const {
        if (state_->slots.empty())
            return;
        const auto state = state_; // a subscriber may destroy the owner
        ++state->depth;
        const std::size_t count = state->slots.size();
        for (std::size_t index = 0; index < count; ++index) {
            if (const auto slot = state->slots[index].second)
                (*slot)(arguments...);
        }
        if (--state->depth == 0)
            state->sweep();
    }

private:
    struct State {
        std::vector<std::pair<std::size_t, std::shared_ptr<Slot>>> slots; ///< an empty slot has left
        std::size_t lastIdentifier = 0;
        int depth = 0;

        void leave(std::size_t identifier) {
            for (auto& [slotIdentifier, slot] : slots) {
                if (slotIdentifier == identifier)
                    slot = nullptr;
            }
            if (depth == 0)
                sweep();
        }

        void sweep() {
            std::erase_if(slots, [](const auto& slot) { return !slot.second; });
        }
    };

    std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace tessivo::ui
