#pragma once

#include <memory>

namespace tessivo {

class Console;
class MainQueue;
class RemoteConfig;
class SavedSettings;

/// Pulls the remote switches at every start and saves them beside the settings. No screen waits for it: a
/// reader finds the values of the last fetch, or those that a failed one left, or none. Main thread.
class FirebaseManager final : public std::enable_shared_from_this<FirebaseManager> {
public:
    /// `shared` is what a fetch asks. All of these outlive the manager and the fetches that it has started.
    FirebaseManager(RemoteConfig& shared, SavedSettings& settings, MainQueue& mainQueue, Console& console);

    /// Fetches the switches; returns at once. A failure is told to the console only.
    void fetch();

private:
    void store();

    RemoteConfig& shared_;
    SavedSettings& settings_;
    MainQueue& mainQueue_;
    Console& console_;
    RemoteConfig* remoteConfig_ = nullptr; ///< none before the first fetch
};

} // namespace tessivo
