#pragma once

namespace tessivo {
class Console;
class HttpClient;
class ImageCoding;
class JsonCoding;
class LocalizedTexts;
class MainQueue;
class ResponseCaches;
class WorkQueue;
} // namespace tessivo

namespace tessivo::unsplash {

/// What the machine gives the picker. All of it outlives the picker's objects and their unfinished work.
struct PickerPlatform {
    Console& console;
    MainQueue& mainQueue;
    WorkQueue& background; ///< for work on pictures, and to start requests
    HttpClient& http;
    JsonCoding& json;
    ImageCoding& images;
    ResponseCaches& caches;
    const LocalizedTexts* texts; ///< the module's own table; null where it was not found
};

} // namespace tessivo::unsplash
