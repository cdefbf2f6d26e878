#include "qtnetwork/QtResponseCaches.h"

#include <QCache>
#include <QIODevice>
#include <QNetworkDiskCache>
#include <QUrl>

#include <memory>
#include <mutex>
#include <system_error>
#include <utility>

namespace tessivo {
namespace {

class QtResponseCache final : public ResponseCache {
public:
    QtResponseCache(const std::filesystem::path& folder, std::int64_t memoryCapacity,
                    std::int64_t diskCapacity)
        : memory_(static_cast<qsizetype>(memoryCapacity)) {
        disk_.setCacheDirectory(QString::fromStdString(folder.string()));
        disk_.setMaximumCacheSize(diskCapacity);
    }

    std::optional<std::string> find(const std::string& url) override {
        const std::lock_guard lock(mutex_);
        if (const auto* body = memory_.object(url))
            return *body;
        const std::unique_ptr<QIODevice> file(disk_.data(addressOf(url)));
        if (!file)
            return std::nullopt;
        std::string body = file->readAll().toStdString();
        remember(url, body);
        return body;
    }

    void store(const std::string& url, const std::string& body) override {
        const std::lock_guard lock(mutex_);
        remember(url, body);
        QNetworkCacheMetaData about;
        about.setUrl(addressOf(url));
        about.setSaveToDisk(std::cmp_less_equal(body.size(), disk_.maximumCacheSize()));
        disk_.remove(about.url());
        if (QIODevice* file = disk_.prepare(about)) {
            file->write(body.data(), static_cast<qint64>(body.size()));
            disk_.insert(file);
        }
    }

private:
    static QUrl addressOf(const std::string& url) { return QUrl(QString::fromStdString(url)); }

    void remember(const std::string& url, const std::string& body) {
        memory_.insert(url, new std::string(body), static_cast<qsizetype>(body.size()));
    }

    std::mutex mutex_; ///< pictures are read and kept on several threads
    QCache<std::string, std::string> memory_;
    QNetworkDiskCache disk_;
};

} // namespace

std::unique_ptr<ResponseCache> QtResponseCaches::open(std::string_view name, std::int64_t memoryCapacity,
                                                      std::int64_t diskCapacity) {
    const auto folder = folder_ / name;
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    std::filesystem::permissions(folder, std::filesystem::perms::owner_all, ignored);
    return std::make_unique<QtResponseCache>(folder, memoryCapacity, diskCapacity);
}

} // namespace tessivo
