#include "Ports/Url.h"

#include <algorithm>
#include <array>

namespace tessivo {
namespace {

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Letters, digits and some marks, as a table: addresses make up most of what the photo service answers.
class CharacterSet {
public:
    constexpr explicit CharacterSet(std::string_view marks) {
        for (std::size_t byte = 0; byte < held_.size(); ++byte) {
            const char c = static_cast<char>(byte);
            held_[byte] = isLetter(c) || isDigit(c) || marks.find(c) != std::string_view::npos;
        }
    }

    [[nodiscard]] constexpr bool contains(char c) const { return held_[static_cast<unsigned char>(c)]; }

private:
    std::array<bool, 256> held_{};
};

constexpr CharacterSet schemeCharacters("+-.");
constexpr CharacterSet pathCharacters("-._~!$&'()*+,;=:@/");
constexpr CharacterSet queryCharacters("-._~!$&'()*+,;=:@/?");
constexpr CharacterSet queryItemCharacters("-._~!$'()*,;:@/?");
constexpr CharacterSet authorityCharacters("-._~!$&'()*+,;=:@[]");

constexpr int hexDigit(char c) {
    if (isDigit(c))
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

bool isEscape(std::string_view text) {
    return text.size() >= 3 && text[0] == '%' && hexDigit(text[1]) >= 0 && hexDigit(text[2]) >= 0;
}

/// Allowed characters and whole percent escapes only.
bool isWellFormed(std::string_view text, const CharacterSet& allowed) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (allowed.contains(text[at]))
            continue;
        if (!isEscape(text.substr(at)))
            return false;
        at += 2;
    }
    return true;
}

std::string escaped(std::string_view text, const CharacterSet& allowed) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        if (allowed.contains(c)) {
            result += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        result += '%';
        result += digits[byte >> 4u];
        result += digits[byte & 0xFu];
    }
    return result;
}

std::string unescaped(std::string_view text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (isEscape(text.substr(at))) {
            result += static_cast<char>(hexDigit(text[at + 1]) * 16 + hexDigit(text[at + 2]));
            at += 2;
        } else {
            result += text[at];
        }
    }
    return result;
}

bool isScheme(std::string_view text) {
    return !text.empty() && isLetter(text.front()) &&
           std::ranges::all_of(text, [](char c) { return schemeCharacters.contains(c); });
}

bool isAuthority(std::string_view text) {
    if (!isWellFormed(text, authorityCharacters))
        return false;
    const std::string_view host = text.substr(text.find('@') + 1); // npos + 1 is 0
    const auto colon = host.rfind(':');
    if (colon == std::string_view::npos || host.find(']', colon) != std::string_view::npos)
        return true;
    return std::ranges::all_of(host.substr(colon + 1), isDigit);
}

/// Cuts `text` before the first `mark` and gives what was cut off, mark included.
std::string_view cutAt(std::string_view& text, char mark) {
    const auto at = std::min(text.find(mark), text.size());
    const std::string_view tail = text.substr(at);
    text = text.substr(0, at);
    return tail;
}

} // namespace

std::optional<Url> Url::parse(std::string_view text) {
    if (text.empty())
        return std::nullopt;
    Url url;
    std::string_view rest = text;
    std::string_view fragment = cutAt(rest, '#');
    std::string_view query = cutAt(rest, '?');
    if (!fragment.empty()) {
        fragment.remove_prefix(1);
        if (!isWellFormed(fragment, queryCharacters))
            return std::nullopt;
        url.fragment_ = fragment;
    }
    if (!query.empty()) {
        query.remove_prefix(1);
        if (!isWellFormed(query, queryCharacters))
            return std::nullopt;
        url.query_ = query;
    }
    if (const auto colon = rest.find(':'); colon < rest.find('/')) {
        if (!isScheme(rest.substr(0, colon)))
            return std::nullopt;
        url.origin_ = rest.substr(0, colon + 1);
        rest.remove_prefix(colon + 1);
    }
    if (rest.starts_with("//")) {
        std::string_view authority = rest.substr(2);
        const std::string_view path = cutAt(authority, '/');
        if (!isAuthority(authority))
            return std::nullopt;
        url.origin_ += "//";
        url.origin_ += authority;
        rest = path;
    }
    if (!isWellFormed(rest, pathCharacters))
        return std::nullopt;
    url.path_ = rest;
    return url;
}

Url Url::ofFile(std::string_view path) {
    Url url;
    url.origin_ = "file://";
    url.path_ = escaped(path, pathCharacters);
    return url;
}

std::string Url::scheme() const {
    const auto colon = origin_.find(':');
    std::string scheme = colon == std::string::npos ? "" : origin_.substr(0, colon);
    std::ranges::transform(scheme, scheme.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return scheme;
}

bool Url::isWeb() const {
    const std::string name = scheme();
    return name == "http" || name == "https";
}

std::optional<std::string> Url::filePath() const {
    const std::string_view host = std::string_view(origin_).substr(origin_.find(':') + 1); // npos + 1 is 0
    std::string path = unescaped(path_);
    if (scheme() != "file" || (!host.empty() && host != "//" && host != "//localhost") ||
        !path.starts_with('/') || path.find('\0') != std::string::npos)
        return std::nullopt;
    return path;
}

std::string Url::absoluteString() const {
    std::string text = origin_ + path_;
    if (query_)
        text += "?" + *query_;
    if (fragment_)
        text += "#" + *fragment_;
    return text;
}

std::string Url::lastPathComponent() const {
    std::string_view path = path_;
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    if (path == "/")
        return "/";
    return unescaped(path.substr(path.rfind('/') + 1)); // npos + 1 is 0
}

Url Url::withPath(std::string_view path) const {
    Url url = *this;
    url.path_ = escaped(path, pathCharacters);
    return url;
}

Url Url::withQuery(std::string_view query) const {
    Url url = *this;
    url.query_ = escaped(query, queryCharacters);
    return url;
}

Url Url::appendingQueryItem(std::string_view name, std::string_view value) const {
    Url url = *this;
    const std::string before = query_ && !query_->empty() ? *query_ + "&" : "";
    url.query_ = before + escaped(name, queryItemCharacters) + "=" + escaped(value, queryItemCharacters);
    return url;
}

} // namespace tessivo
