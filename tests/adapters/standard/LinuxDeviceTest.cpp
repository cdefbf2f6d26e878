#include "standard/LinuxDevice.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <string_view>

namespace tessivo {
namespace {

using testing::IsEmpty;
using testing::Not;

TEST(LinuxDeviceTest, AsksFirmwareFirstAndTheKernelLast) {
    const TemporaryFolder root;
    const auto write = [&](const char* file, std::string_view text) {
        std::filesystem::create_directories((root / file).parent_path());
        std::ofstream(root / file, std::ios::binary) << text;
    };
    const LinuxDevice device(root / "");
    EXPECT_THAT(device.modelIdentifier(), Not(IsEmpty())) << "the kind of processor";
    EXPECT_THAT(device.systemVersion(), Not(IsEmpty())) << "the kernel's version";

    write("sys/class/dmi/id/product_name", "ThinkPad X13 \n");
    EXPECT_EQ(device.modelIdentifier(), "ThinkPad X13");
    write("proc/device-tree/model", std::string_view("Pine64 PinePhone (1.2)\0", 23));
    EXPECT_EQ(device.modelIdentifier(), "Pine64 PinePhone (1.2)");

    write("usr/lib/os-release", "NAME=x\nPRETTY_NAME='Some \"Linux\"'\n");
    EXPECT_EQ(device.systemVersion(), "Some \"Linux\"");
    write("etc/os-release", "PRETTY_NAME=\"Debian \\\"12\\\"\"\n");
    EXPECT_EQ(device.systemVersion(), "Debian \"12\"");
}

} // namespace
} // namespace tessivo
