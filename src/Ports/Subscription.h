#pragma once

#include <functional>
#include <utility>

namespace tessivo {

/// Something that goes on for as long as it is held: a subscription, a timer. Dropping it ends it; ending
/// twice is harmless. Move-only.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> end) : end_(std::move(end)) {}
    Subscription(Subscription&& other) noexcept : end_(std::exchange(other.end_, nullptr)) {}
    Subscription& operator=(Subscription&& other) noexcept {
        if (this != &other) {
            end();
            end_ = std::exchange(other.end_, nullptr);
        }
        return *this;
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    ~Subscription() { end(); }

    void end() {
        if (auto ending = std::exchange(end_, nullptr))
            ending();
    }

    [[nodiscard]] bool isActive() const { return static_cast<bool>(end_); }

private:
    std::function<void()> end_;
};

} // namespace tessivo
