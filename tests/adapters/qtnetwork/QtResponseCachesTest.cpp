#include "qtnetwork/QtResponseCaches.h"

#include "QtApplication.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tessivo {
namespace {

constexpr std::int64_t large = 10'000'000;

class QtResponseCachesTest : public testing::Test {
protected:
    std::unique_ptr<ResponseCache> open(std::int64_t memory, std::int64_t disk) {
        return caches.open("unsplash", memory, disk);
    }
    [[nodiscard]] std::uintmax_t bytesOnDisk() const {
        std::uintmax_t total = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path()))
            total += entry.is_regular_file() ? entry.file_size() : 0;
        return total;
    }

    QCoreApplication& application = qtApplication();
    TemporaryFolder folder;
    QtResponseCaches caches{folder.path() / "cache"};
};

TEST_F(QtResponseCachesTest, GivesBackWhatWasStoredUnderTheFullAddress) {
    const auto cache = open(large, large);
    const std::string body("pic\0ture", 8);
    cache->store("https://x.test/a?w=1.0&dpr=2", body);
    cache->store("https://x.test/a?w=2.0&dpr=2", "other");
    EXPECT_EQ(cache->find("https://x.test/a?w=1.0&dpr=2"), body);
    EXPECT_EQ(cache->find("https://x.test/a"), std::nullopt);
    cache->store("https://x.test/a?w=2.0&dpr=2", "newer");
    EXPECT_EQ(cache->find("https://x.test/a?w=2.0&dpr=2"), "newer");
}

TEST_F(QtResponseCachesTest, LastsOverARestart) {
    open(large, large)->store("https://x.test/a", "first");
    open(large, large)->store("https://x.test/a", "second");
    EXPECT_EQ(open(0, large)->find("https://x.test/a"), "second");
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "cache" / "unsplash"));
}

TEST_F(QtResponseCachesTest, KeepsToItsCapacities) {
    const auto cache = open(1000, 100'000);
    const auto address = [](int index) { return "https://x.test/" + std::to_string(index); };
    for (int index = 0; index < 100; ++index)
        cache->store(address(index), std::string(5000, 'x'));
    EXPECT_LE(bytesOnDisk(), 100'000u);
    EXPECT_TRUE(cache->find(address(99)));
    EXPECT_FALSE(cache->find(address(0)));
    cache->store("https://x.test/huge", std::string(200'000, 'x'));
    EXPECT_FALSE(cache->find("https://x.test/huge"));
    EXPECT_TRUE(cache->find(address(99))) << "what does not fit pushes nothing out";
}

TEST_F(QtResponseCachesTest, WithoutAFolderItKeepsToMemory) {
    std::ofstream(folder / "cache") << "in the way";
    const auto cache = open(large, large);
    cache->store("https://x.test/a", "body");
    EXPECT_EQ(cache->find("https://x.test/a"), "body");
    EXPECT_EQ(open(large, large)->find("https://x.test/a"), std::nullopt);
}

} // namespace
} // namespace tessivo
