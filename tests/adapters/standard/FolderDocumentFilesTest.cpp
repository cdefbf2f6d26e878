#include "standard/FolderDocumentFiles.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace tessivo {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class FolderDocumentFilesTest : public testing::Test {
protected:
    TemporaryFolder folder;
    FolderDocumentFiles files{folder.path() / "a" / "documents"};
};

TEST_F(FolderDocumentFilesTest, KeepsWholeFilesForTheUserAlone) {
    EXPECT_EQ(files.read("photo-1"), std::nullopt);
    const auto path = files.write("photo-1", "one\0two"s);
    ASSERT_TRUE(path);
    EXPECT_EQ(files.read("photo-1"), "one\0two"s);
    EXPECT_TRUE(files.fileExists(path.value()));
    EXPECT_FALSE(files.fileExists("photo-1"));
    ASSERT_TRUE(files.write("photo-1", "x"));
    EXPECT_EQ(files.read("photo-1"), "x");
    EXPECT_EQ(fs::status(path.value()).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(fs::path(path.value()).parent_path()).permissions(), fs::perms(0700));
    EXPECT_EQ(std::distance(fs::directory_iterator(fs::path(path.value()).parent_path()), {}), 1);
}

TEST_F(FolderDocumentFilesTest, NoNameReachesOutOfTheFolder) {
    ASSERT_TRUE(files.write("in", "inside"));
    std::ofstream(folder / "a/out") << "outside";
    for (const auto& name : {""s, "."s, ".."s, "/"s, "../out"s, "a/b"s, "/etc/hosts"s, "in\0/../../out"s,
                             std::string(251, 'x')}) {
        EXPECT_FALSE(files.write(name, "evil")) << name;
        EXPECT_EQ(files.read(name), std::nullopt) << name;
    }
    EXPECT_TRUE(files.write("..hidden", "x"));
    EXPECT_TRUE(files.write(std::string(250, 'x'), "x"));
    EXPECT_EQ(fs::file_size(folder / "a/out"), 7u);
}

TEST_F(FolderDocumentFilesTest, AFailureLosesNothing) {
    std::ofstream(folder / "a") << "in the way";
    EXPECT_FALSE(files.write("photo", "x"));
    EXPECT_EQ(files.read("photo"), std::nullopt);
    FolderDocumentFiles sound(folder.path() / "b");
    ASSERT_TRUE(sound.write("photo", "old"));
    ASSERT_TRUE(sound.write("photo.new", "a document of that name"));
    fs::create_directory(folder / "b.unfinished");
    EXPECT_FALSE(sound.write("photo", "new"));
    fs::remove(folder / "b.unfinished");
    ASSERT_TRUE(sound.write("photo", "old"));
    EXPECT_EQ(sound.read("photo.new"), "a document of that name");
    EXPECT_EQ(sound.read("photo"), "old");
    fs::create_directory(folder / "b/directory");
    EXPECT_EQ(sound.read("directory"), std::nullopt);
}

} // namespace
} // namespace tessivo
