#include "UnsplashPicker/PhotoCoding.h"

#include "UnsplashPicker/HexColor.h"

#include <algorithm>
#include <cmath>
#include <concepts>

namespace tessivo::unsplash {
namespace {

// The fields of each record, walked by a decoder or an encoder. A field of `orEmpty` stays empty if it cannot
// be decoded; any other failure fails the record.

template <class Walk, class Exif>
requires std::same_as<std::remove_const_t<Exif>, UnsplashPhotoExif>
void walkFields(Walk& walk, Exif& exif) {
    walk("aperture", exif.aperture);
    walk("exposure_time", exif.exposureTime);
    walk("focal_length", exif.focalLength);
    walk("iso", exif.iso);
    walk("make", exif.make);
    walk("model", exif.model);
}

template <class Walk, class User>
requires std::same_as<std::remove_const_t<User>, UnsplashUser>
void walkFields(Walk& walk, User& user) {
    walk("id", user.identifier);
    walk("username", user.username);
    walk("first_name", user.firstName);
    walk("last_name", user.lastName);
    walk("name", user.name);
    walk("profile_image", user.profileImage);
    walk("bio", user.bio);
    walk("links", user.links);
    walk("location", user.location);
    walk("portfolio_url", user.portfolioURL);
    walk("total_collections", user.totalCollections);
    walk("total_likes", user.totalLikes);
    walk("total_photos", user.totalPhotos);
}

template <class Walk, class Photo>
requires std::same_as<std::remove_const_t<Photo>, UnsplashPhoto>
void walkFields(Walk& walk, Photo& photo) {
    walk("id", photo.identifier);
    walk("height", photo.height);
    walk("width", photo.width);
    walk.orEmpty("color", photo.color);
    walk.orEmpty("exif", photo.exif);
    walk("user", photo.user);
    walk("urls", photo.urls);
    walk("links", photo.links);
    walk("likes", photo.likesCount);
    walk.orEmpty("downloads", photo.downloadsCount);
    walk.orEmpty("views", photo.viewsCount);
}

std::optional<std::int64_t> integerIn(const JsonValue& json) {
    if (const auto* integer = json.as<std::int64_t>())
        return *integer;
    // 3.0 is a whole number, however it is written.
    constexpr double limit = 9223372036854775808.0; // 2^63
    const auto* number = json.as<double>();
    if (!number || std::trunc(*number) != *number || *number < -limit || *number >= limit)
        return std::nullopt;
    return static_cast<std::int64_t>(*number);
}

/// Decodes the fields of one object; keeps the first failure.
class Decoder {
public:
    explicit Decoder(const JsonValue& json) : json_(json) {
        if (!json.as<JsonValue::Object>())
            fail("the object");
    }

    template <class Field>
    void operator()(std::string_view key, Field& field) {
        const JsonValue* value = json_.find(key);
        if (!value || !decode(*value, field))
            fail(key);
    }

    /// Missing and null are empty; another type is a failure.
    template <class Value>
    void operator()(std::string_view key, std::optional<Value>& field) {
        const JsonValue* value = json_.find(key);
        if (value && !value->isNull() && !decode(*value, field))
            fail(key);
    }

    template <class Value>
    void orEmpty(std::string_view key, std::optional<Value>& field) {
        const JsonValue* value = json_.find(key);
        Value held{};
        if (value && decode(*value, held))
            field = std::move(held);
    }

    [[nodiscard]] const Outcome& failure() const { return failure_; }

private:
    static bool decode(const JsonValue& value, std::string& field) {
        const auto* text = value.as<std::string>();
        if (text)
            field = *text;
        return text;
    }

    static bool decode(const JsonValue& value, std::optional<std::string>& field) {
        return decode(value, field.emplace());
    }

    static bool decode(const JsonValue& value, std::int64_t& field) {
        const auto integer = integerIn(value);
        field = integer.value_or(0);
        return integer.has_value();
    }

    static bool decode(const JsonValue& value, Color& field) {
        const auto* text = value.as<std::string>();
        const auto color = text ? colorFromHex(*text) : std::nullopt;
        field = color.value_or(Color{});
        return color.has_value();
    }

    /// Text that is no address leaves the field empty.
    static bool decode(const JsonValue& value, std::optional<Url>& field) {
        const auto* text = value.as<std::string>();
        field = text ? Url::parse(*text) : std::nullopt;
        return text;
    }

    /// Unknown kinds and text that is no address are left out.
    template <class Kind>
    static bool decode(const JsonValue& value, std::map<Kind, Url>& field) {
        const auto* members = value.as<JsonValue::Object>();
        for (const auto& [name, address] : members ? *members : JsonValue::Object()) {
            const auto kind = std::ranges::find(kindNames<Kind>, name) - kindNames<Kind>.begin();
            const auto* text = address.template as<std::string>();
            if (!text || kind == std::ssize(kindNames<Kind>))
                continue;
            if (auto url = Url::parse(*text))
                field.insert_or_assign(static_cast<Kind>(kind), std::move(*url));
        }
        return members;
    }

    static bool decode(const JsonValue& value, UnsplashPhotoExif& field) {
        Decoder fields(value);
        walkFields(fields, field);
        return !fields.failure_;
    }

    bool decode(const JsonValue& value, UnsplashUser& field) {
        Decoder fields(value);
        walkFields(fields, field);
        if (fields.failure_ && !failure_)
            failure_ = fields.failure_; // it names the field inside
        return !fields.failure_;
    }

    void fail(std::string_view key) {
        if (!failure_)
            failure_ = decodingError("\"" + std::string(key) + "\" is missing or of another type.");
    }

    const JsonValue& json_;
    Outcome failure_;
};

/// Encodes the fields of one object; empty ones are left out.
class Encoder {
public:
    void operator()(std::string key, const auto& field) {
        object_.push_back({std::move(key), encode(field)});
    }

    template <class Value>
    void operator()(std::string key, const std::optional<Value>& field) {
        if (field)
            (*this)(std::move(key), *field);
    }

    void orEmpty(std::string key, const auto& field) { (*this)(std::move(key), field); }

    template <class Record>
    [[nodiscard]] static JsonValue encoded(const Record& record) {
        Encoder fields;
        walkFields(fields, record);
        return JsonValue(std::move(fields.object_));
    }

private:
    static JsonValue encode(const std::string& text) { return JsonValue(text); }
    static JsonValue encode(std::int64_t number) { return JsonValue(number); }
    static JsonValue encode(const Color& color) { return JsonValue(hexFromColor(color)); }
    static JsonValue encode(const Url& url) { return JsonValue(url.absoluteString()); }
    static JsonValue encode(const UnsplashPhotoExif& exif) { return encoded(exif); }
    static JsonValue encode(const UnsplashUser& user) { return encoded(user); }

    template <class Kind>
    static JsonValue encode(const std::map<Kind, Url>& addresses) {
        JsonValue::Object object;
        for (const auto& [kind, url] : addresses)
            object.push_back({std::string(nameOf(kind)), encode(url)});
        return JsonValue(std::move(object));
    }

    JsonValue::Object object_;
};

} // namespace

Error decodingError(std::string description) {
    return {decodingErrorDomain, 0, std::move(description)};
}

Result<UnsplashPhoto> decodePhoto(const JsonValue& json) {
    UnsplashPhoto photo;
    Decoder fields(json);
    walkFields(fields, photo);
    if (fields.failure())
        return *fields.failure();
    return photo;
}

Result<Photos> decodePhotos(const JsonValue& json) {
    const auto* list = json.as<JsonValue::Array>();
    if (!list)
        return decodingError("A list of photos is expected.");
    Photos photos;
    photos.reserve(list->size());
    for (const auto& element : *list) {
        const auto photo = std::make_shared<UnsplashPhoto>();
        Decoder fields(element);
        walkFields(fields, *photo);
        if (fields.failure())
            return *fields.failure();
        photos.push_back(photo);
    }
    return photos;
}

JsonValue encodePhoto(const UnsplashPhoto& photo) {
    return Encoder::encoded(photo);
}

} // namespace tessivo::unsplash
