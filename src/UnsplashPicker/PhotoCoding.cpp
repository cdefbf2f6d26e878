#include "UnsplashPicker/PhotoCoding.h"

#include "UnsplashPicker/HexColor.h"
#include "UnsplashPicker/PhotoKeys.h"

#include <cmath>

namespace tessivo::unsplash {
namespace {

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

/// Reads the fields of one object; the first required one that does not read is kept as the fault.
class FieldReader {
public:
    explicit FieldReader(const JsonValue& json) : json_(json) {
        if (!json.as<JsonValue::Object>())
            fail("the object");
    }

    void read(std::string_view key, std::string& field) {
        const auto* value = json_.find(key);
        if (const auto* text = value ? value->as<std::string>() : nullptr)
            field = *text;
        else
            fail(key);
    }

    void read(std::string_view key, std::int64_t& field) {
        const auto* value = json_.find(key);
        const auto integer = value ? integerIn(*value) : std::nullopt;
        if (integer)
            field = *integer;
        else
            fail(key);
    }

    /// Missing and null are empty; another type is a fault.
    void read(std::string_view key, std::optional<std::string>& field) {
        const auto* value = json_.find(key);
        if (!value || value->isNull())
            return;
        if (const auto* text = value->as<std::string>())
            field = *text;
        else
            fail(key);
    }

    template <class Kind>
    void read(std::string_view key, std::map<Kind, Url>& field) {
        const auto* value = json_.find(key);
        const auto* members = value ? value->template as<JsonValue::Object>() : nullptr;
        if (!members)
            return fail(key);
        for (const auto& [name, address] : *members) {
            const auto* text = address.template as<std::string>();
            const auto url = text ? Url::parse(*text) : std::nullopt;
            for (std::size_t kind = 0; url && kind < kindNames<Kind>.size(); ++kind) {
                if (kindNames<Kind>[kind] == name)
                    field.insert_or_assign(static_cast<Kind>(kind), *url);
            }
        }
    }

    void readIfSound(std::string_view key, std::optional<std::int64_t>& field) {
        if (const auto* value = json_.find(key))
            field = integerIn(*value);
    }

    void fail(std::string_view key) {
        if (!fault_)
            fault_ =
                Error{decodingErrorDomain, 0, "\"" + std::string(key) + "\" is missing or of another type."};
    }
    void fail(const Error& error) {
        if (!fault_)
            fault_ = error;
    }
    [[nodiscard]] const Outcome& fault() const { return fault_; }

private:
    const JsonValue& json_;
    Outcome fault_;
};

Result<UnsplashUser> decodeUser(const JsonValue& json) {
    UnsplashUser user;
    FieldReader fields(json);
    fields.read("id", user.identifier);
    fields.read("username", user.username);
    fields.read("first_name", user.firstName);
    fields.read("last_name", user.lastName);
    fields.read("name", user.name);
    fields.read("profile_image", user.profileImage);
    fields.read("bio", user.bio);
    fields.read("links", user.links);
    fields.read("location", user.location);
    std::optional<std::string> portfolio;
    fields.read("portfolio_url", portfolio);
    user.portfolioURL = portfolio ? Url::parse(*portfolio) : std::nullopt;
    fields.read("total_collections", user.totalCollections);
    fields.read("total_likes", user.totalLikes);
    fields.read("total_photos", user.totalPhotos);
    if (fields.fault())
        return *fields.fault();
    return user;
}

std::optional<UnsplashPhotoExif> decodeExif(const JsonValue& json) {
    UnsplashPhotoExif exif;
    FieldReader fields(json);
    fields.read("aperture", exif.aperture);
    fields.read("exposure_time", exif.exposureTime);
    fields.read("focal_length", exif.focalLength);
    fields.read("iso", exif.iso);
    fields.read("make", exif.make);
    fields.read("model", exif.model);
    return fields.fault() ? std::nullopt : std::optional(exif);
}

template <class Kind>
JsonValue encodeMap(const std::map<Kind, Url>& addresses) {
    JsonValue::Object object;
    for (const auto& [kind, url] : addresses)
        object.push_back({std::string(nameOf(kind)), JsonValue(url.absoluteString())});
    return JsonValue(std::move(object));
}

template <class Value>
void append(JsonValue::Object& object, std::string key, const std::optional<Value>& value) {
    if (value)
        object.push_back({std::move(key), JsonValue(*value)});
}

JsonValue encodeUser(const UnsplashUser& user) {
    JsonValue::Object object;
    object.push_back({"id", JsonValue(user.identifier)});
    object.push_back({"username", JsonValue(user.username)});
    append(object, "first_name", user.firstName);
    append(object, "last_name", user.lastName);
    append(object, "name", user.name);
    object.push_back({"profile_image", encodeMap(user.profileImage)});
    append(object, "bio", user.bio);
    object.push_back({"links", encodeMap(user.links)});
    append(object, "location", user.location);
    if (user.portfolioURL)
        object.push_back({"portfolio_url", JsonValue(user.portfolioURL->absoluteString())});
    object.push_back({"total_collections", JsonValue(user.totalCollections)});
    object.push_back({"total_likes", JsonValue(user.totalLikes)});
    object.push_back({"total_photos", JsonValue(user.totalPhotos)});
    return JsonValue(std::move(object));
}

JsonValue encodeExif(const UnsplashPhotoExif& exif) {
    return JsonValue(JsonValue::Object{{"aperture", JsonValue(exif.aperture)},
                                       {"exposure_time", JsonValue(exif.exposureTime)},
                                       {"focal_length", JsonValue(exif.focalLength)},
                                       {"iso", JsonValue(exif.iso)},
                                       {"make", JsonValue(exif.make)},
                                       {"model", JsonValue(exif.model)}});
}

} // namespace

Result<UnsplashPhoto> decodePhoto(const JsonValue& json) {
    UnsplashPhoto photo;
    FieldReader fields(json);
    fields.read("id", photo.identifier);
    fields.read("height", photo.height);
    fields.read("width", photo.width);
    if (const auto* color = json.find("color")) {
        if (const auto* text = color->as<std::string>())
            photo.color = colorFromHex(*text);
    }
    if (const auto* exif = json.find("exif"))
        photo.exif = decodeExif(*exif);
    if (const auto* value = json.find("user")) {
        auto user = decodeUser(*value);
        if (user)
            photo.user = std::move(user.value());
        else
            fields.fail(user.error());
    } else {
        fields.fail("user");
    }
    fields.read("urls", photo.urls);
    fields.read("links", photo.links);
    fields.read("likes", photo.likesCount);
    fields.readIfSound("downloads", photo.downloadsCount);
    fields.readIfSound("views", photo.viewsCount);
    if (fields.fault())
        return *fields.fault();
    return photo;
}

Result<std::vector<UnsplashPhoto>> decodePhotos(const JsonValue& json) {
    const auto* list = json.as<JsonValue::Array>();
    if (!list)
        return Error{decodingErrorDomain, 0, "The photos are no list."};
    std::vector<UnsplashPhoto> photos;
    photos.reserve(list->size());
    for (const auto& element : *list) {
        auto photo = decodePhoto(element);
        if (!photo)
            return photo.error();
        photos.push_back(std::move(photo.value()));
    }
    return photos;
}

JsonValue encodePhoto(const UnsplashPhoto& photo) {
    JsonValue::Object object;
    object.push_back({"id", JsonValue(photo.identifier)});
    object.push_back({"height", JsonValue(photo.height)});
    object.push_back({"width", JsonValue(photo.width)});
    if (photo.color)
        object.push_back({"color", JsonValue(hexFromColor(*photo.color))});
    if (photo.exif)
        object.push_back({"exif", encodeExif(*photo.exif)});
    object.push_back({"user", encodeUser(photo.user)});
    object.push_back({"urls", encodeMap(photo.urls)});
    object.push_back({"links", encodeMap(photo.links)});
    object.push_back({"likes", JsonValue(photo.likesCount)});
    append(object, "downloads", photo.downloadsCount);
    append(object, "views", photo.viewsCount);
    return JsonValue(std::move(object));
}

} // namespace tessivo::unsplash
