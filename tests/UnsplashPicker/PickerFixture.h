#pragma once

#include "Ports/ImageCoding.h"
#include "UnsplashPicker/PickerServices.h"
#include "fakes/MemoryResponseCaches.h"
#include "fakes/PostedWorkQueue.h"
#include "fakes/RecordingConsole.h"
#include "fakes/ScriptedHttpClient.h"
#include "fakes/Timeline.h"
#include "support/PickerHost.h"
#include "json/NlohmannJson.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace tessivo::unsplash {

/// Pictures for tests: the data "4x3" decode to a white picture of that size; nothing else decodes.
class SizeImages final : public ImageCoding {
public:
    std::shared_ptr<const Bitmap> decode(std::string_view data, std::optional<PixelSize>) const override {
        ++decoded;
        Bitmap bitmap;
        if (std::sscanf(std::string(data).c_str(), "%dx%d", &bitmap.width, &bitmap.height) != 2)
            return nullptr;
        bitmap.pixels.assign(static_cast<std::size_t>(bitmap.width) * bitmap.height * 4, 255);
        return std::make_shared<const Bitmap>(std::move(bitmap));
    }
    std::optional<std::string> jpeg(const Bitmap&, double) const override { return std::nullopt; }
    std::optional<std::string> png(const Bitmap&) const override { return std::nullopt; }

    mutable int decoded = 0;
};

/// The picker's machine on virtual time: a scripted network, real JSON.
class PickerTest : public testing::Test {
protected:
    fakes::Timeline timeline;
    fakes::RecordingConsole console;
    fakes::PostedWorkQueue work{timeline};
    fakes::ScriptedHttpClient http;
    fakes::MemoryResponseCaches caches;
    NlohmannJson json;
    SizeImages images;
    JsonLocalizedTexts texts = pickerTexts("en");
    PickerServices services{PickerPlatform{console, timeline, work, http, json, images, caches, &texts}};
};

} // namespace tessivo::unsplash
