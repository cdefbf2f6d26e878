#pragma once

#include "Ports/TextSharing.h"

#include <string>
#include <utility>
#include <vector>

namespace tessivo::fakes {

/// Remembers what was shared and how; the test answers.
class RecordingTextSharing final : public TextSharing {
public:
    struct Shared {
        std::string act;
        std::string text;
        Done done;
    };

    void copy(const std::string& text, Done done) override {
        shared.push_back({"copy", text, std::move(done)});
    }
    void mail(const std::string& text, Done done) override {
        shared.push_back({"mail", text, std::move(done)});
    }
    [[nodiscard]] bool canMessage() const override { return hasMessenger; }
    void message(const std::string& text, Done done) override {
        shared.push_back({"message", text, std::move(done)});
    }

    std::vector<Shared> shared;
    bool hasMessenger = true;
};

} // namespace tessivo::fakes
