#pragma once

#include "Ports/PictureSharing.h"

#include <string>
#include <utility>
#include <vector>

namespace tessivo::fakes {

/// Remembers what was shared and how; the test answers.
class RecordingPictureSharing final : public PictureSharing {
public:
    struct Shared {
        std::string act;
        std::shared_ptr<const Bitmap> picture;
        Done done;
    };

    void save(std::shared_ptr<const Bitmap> picture, Saved saved) override {
        shared.push_back({"save", std::move(picture), [this, saved](const Outcome& outcome) {
                              saved(outcome ? Result<std::string>(*outcome) : Result(savedPath));
                          }});
    }
    void copy(std::shared_ptr<const Bitmap> picture, Done done) override {
        shared.push_back({"copy", std::move(picture), std::move(done)});
    }
    void open(std::shared_ptr<const Bitmap> picture, Done done) override {
        shared.push_back({"open", std::move(picture), std::move(done)});
    }
    void mail(std::shared_ptr<const Bitmap> picture, Done done) override {
        shared.push_back({"mail", std::move(picture), std::move(done)});
    }

    std::vector<Shared> shared;
    std::string savedPath = "/home/user/Pictures/Tessivo.png";
};

} // namespace tessivo::fakes
