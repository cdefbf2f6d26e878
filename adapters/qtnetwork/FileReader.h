#pragma once

#include "Ports/HttpClient.h"

#include <QObject>
#include <QThread>

#include <memory>

namespace tessivo {

/// Reads plain files on a thread of its own, one after the other: a drive that hangs holds up the next file
/// and nothing else. Made, used and deleted on one thread with an event loop.
class FileReader {
public:
    FileReader();
    /// Waits a moment for a file that is being read; a thread that hangs on a drive is left behind.
    ~FileReader();
    FileReader(const FileReader&) = delete;
    FileReader& operator=(const FileReader&) = delete;

    using Read = std::function<void(Result<HttpResponse>)>;
    /// Reads the file at `path`; a pipe, a device, a folder and a file of more than `maximum` bytes are
    /// errors. `read` is called on the caller's thread, later, unless `receiver` has gone by then.
    void read(const std::string& path, std::size_t maximum, QObject* receiver, Read read);

private:
    std::shared_ptr<QObject> home_ =
        std::make_shared<QObject>(); ///< what is posted to it runs on the caller's
    std::unique_ptr<QThread> thread_;
    std::unique_ptr<QObject> worker_; ///< what is posted to it runs on the thread
};

} // namespace tessivo
