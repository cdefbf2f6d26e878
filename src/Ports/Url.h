#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace tessivo {

/// An address, whole or relative, taken apart as it is written: nothing is decoded, resolved or put in order.
/// What this class accepts is an address everywhere in the program, whoever hands it in.
class Url {
public:
    /// The address of the local file at `path`, an absolute path of any bytes.
    [[nodiscard]] static Url ofFile(std::string_view path);

    /// Empty for text that is empty or holds what no address can: blanks, letters beyond ASCII, broken
    /// percent escapes, a malformed scheme or port.
    [[nodiscard]] static std::optional<Url> parse(std::string_view text);

    /// The whole text, as it was read or built.
    [[nodiscard]] std::string absoluteString() const;

    /// The scheme in lower case, without its colon; empty for a relative address.
    [[nodiscard]] std::string scheme() const;

    /// Whether it can be fetched over the network: http or https.
    [[nodiscard]] bool isWeb() const;

    /// The path of the local file that a "file" address names; empty for every other address.
    [[nodiscard]] std::optional<std::string> filePath() const;

    [[nodiscard]] const std::optional<std::string>& query() const { return query_; }

    /// The last name of the path, with its percent escapes resolved; "/" for a path of slashes only, empty
    /// for an empty path. It may hold any byte, slashes included: not to be taken for a file name unchecked.
    [[nodiscard]] std::string lastPathComponent() const;

    /// With `path` in place of the path; what a path cannot hold is escaped.
    [[nodiscard]] Url withPath(std::string_view path) const;

    /// With `query` in place of the query. What a query cannot hold is escaped; "&" and "=" are left to mean
    /// what they mean.
    [[nodiscard]] Url withQuery(std::string_view query) const;

    /// With `name=value` behind the queries that are there; both are escaped so that they stay one item.
    [[nodiscard]] Url appendingQueryItem(std::string_view name, std::string_view value) const;

    friend auto operator<=>(const Url&, const Url&) = default;

private:
    Url() = default;

    std::string origin_; ///< scheme and authority with their marks
    std::string path_;
    std::optional<std::string> query_;
    std::optional<std::string> fragment_;
};

} // namespace tessivo
