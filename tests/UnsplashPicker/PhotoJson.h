#pragma once

#include <string>

namespace tessivo::unsplash {

/// A photo as the service writes it; its identifier may be chosen.
inline std::string photoJson(const std::string& id = "p1") {
    return R"({"id": ")" + id + R"(", "width": 400, "height": 300, "color": "#336699", "likes": 7,
        "downloads": 11, "views": 12, "description": null,
        "exif": {"aperture": "2.8", "exposure_time": "1/60", "focal_length": "35", "iso": "100",
                 "make": "M", "model": "X"},
        "user": {"id": "u1", "username": "ada", "first_name": "Ada", "last_name": "L", "name": "Ada L",
                 "profile_image": {"small": "https://x.test/s", "huge": "https://x.test/h"},
                 "bio": null, "links": {"html": "https://x.test/@ada"}, "location": "Berlin",
                 "portfolio_url": "https://ada.test", "total_collections": 1, "total_likes": 2,
                 "total_photos": 3},
        "urls": {"raw": "https://i.test/)" +
           id + R"(?raw=1", "regular": "https://i.test/)" + id + R"(?w=1080", "medium": "https://i.test/m",
                 "thumb": "not an address"},
        "links": {"self": "https://x.test/self", "html": "https://x.test/html",
                  "download_location": "https://api.test/photos/)" +
           id + R"(/download"}})";
}

/// A list of that many photos, from "p<first>" on.
inline std::string photosJson(int count, int first = 1) {
    std::string list = "[";
    for (int index = 0; index < count; ++index)
        list += (index ? "," : "") + photoJson("p" + std::to_string(first + index));
    return list + "]";
}

} // namespace tessivo::unsplash
