#pragma once

#include <QProcess>

#include <string>
#include <vector>

namespace tessivo {

/// The demo photo service, run beside a tour, a test or a benchmark on a port of its own, and ended with this
/// object. One that does not start ends the program.
class DemoPhotos {
public:
    /// `photos` is the size of its editorial collection.
    explicit DemoPhotos(int photos = 200);
    ~DemoPhotos() { end(); }
    DemoPhotos(const DemoPhotos&) = delete;
    DemoPhotos& operator=(const DemoPhotos&) = delete;

    /// Where it listens, such as "http://127.0.0.1:40123"; stays the same after its end.
    [[nodiscard]] const std::string& address() const { return address_; }
    /// Stops listening.
    void end();
    /// What it has logged so far, oldest first: "download demo-3", "picture demo-5".
    [[nodiscard]] const std::vector<std::string>& told();

private:
    QProcess process_;
    std::string address_;
    std::vector<std::string> told_;
};

} // namespace tessivo
