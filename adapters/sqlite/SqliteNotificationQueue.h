#pragma once

#include "Ports/NotificationQueue.h"

#include <filesystem>
#include <memory>

namespace tessivo {
class Console;
}

namespace tessivo::sqlite {

/// The queue in a database file of its own, opened at the first use; see `Database::open` for what is made.
///
/// A file that is damaged, or is no queue, is renamed, together with what lies beside it, to the first free
/// name of the form "<file>.damaged-1"; the console gets both names, and a new queue with all requests
/// that can still be read takes its place. Another process that had the old file open goes over to the new
/// one with its next call. A queue of a newer program is left alone, and every call fails.
class SqliteNotificationQueue final : public NotificationQueue {
public:
    SqliteNotificationQueue(std::filesystem::path file, Console& console);
    ~SqliteNotificationQueue() override;

    Result<std::shared_ptr<const QueuedRequests>> pending() override;
    Outcome add(const NotificationRequest& request) override;
    Outcome remove(const std::vector<std::string>& identifiers) override;
    Outcome retire(const std::vector<std::int64_t>& sequences, const std::string& token,
                   Instant when) override;
    std::vector<std::string> shownIn(const std::string& token) override;
    Result<AuthorizationStatus> authorization() override;
    Outcome setAuthorization(AuthorizationStatus status) override;
    Result<bool> hasLoss() override;
    Outcome clearLoss() override;

private:
    class Session;

    [[nodiscard]] Outcome open();
    [[nodiscard]] Outcome replace(const Error& damage);
    [[nodiscard]] Result<std::filesystem::path> setAside() const;

    /// Opens the file where that is needed and hands it to `work`; lets go of it if `work` finds it damaged.
    template <class Work>
    auto withSession(Work work) -> decltype(work(std::declval<Session&>()));

    std::filesystem::path file_;
    Console& console_;
    std::unique_ptr<Session> session_;
};

} // namespace tessivo::sqlite
