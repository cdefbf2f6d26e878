#pragma once

#include "support/TemporaryFolder.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>

namespace tessivo {

inline std::string contentsOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The desktop's programs on the search path, for as long as this lives. Each records its arguments.
class StandInPrograms {
public:
    StandInPrograms() {
        std::filesystem::create_directory(programs_);
        ::setenv("PATH", (programs_.string() + ":/usr/bin:/bin").c_str(), 1);
        install("xdg-open", 0);
        install("xdg-email", 0);
    }
    ~StandInPrograms() { ::setenv("PATH", path_.c_str(), 1); }

    /// A program that ends with that code.
    void install(const std::string& name, int code) const {
        script(name, "printf '%s\\n' \"$@\" > '" + (folder_ / "called").string() + "'\nexit " +
                         std::to_string(code));
    }
    /// The links that some program of the desktop opens, as a pattern of the shell.
    void handle(const std::string& schemes) const {
        script("xdg-mime", "case \"$3\" in x-scheme-handler/" + schemes + ") echo some.desktop;; esac");
    }
    void removeAll() const { ::setenv("PATH", (folder_ / "nowhere").c_str(), 1); }

    /// What the last program was asked, an argument a line.
    [[nodiscard]] std::string called() const { return contentsOf(folder_ / "called"); }

private:
    void script(const std::string& name, const std::string& lines) const {
        std::ofstream(programs_ / name) << "#!/bin/sh\n" << lines << '\n';
        std::filesystem::permissions(programs_ / name, std::filesystem::perms::owner_all);
    }

    std::string path_ = ::getenv("PATH");
    TemporaryFolder folder_;
    std::filesystem::path programs_ = folder_ / "programs";
};

/// Asks and waits for the answer, which must not come inline. `missing` stands for one that never comes.
template <class Answer>
Answer await(const std::function<void(std::function<void(Answer)>)>& ask, Answer missing) {
    std::optional<Answer> answer;
    ask([&](Answer given) { answer = std::move(given); });
    EXPECT_FALSE(answer);
    QElapsedTimer timer;
    timer.start();
    while (!answer && timer.elapsed() < 10'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    return answer.value_or(std::move(missing));
}

} // namespace tessivo
