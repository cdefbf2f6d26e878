#include "qtnetwork/FileReader.h"

#include "qtnetwork/UrlError.h"

#include <QMetaObject>
#include <QPointer>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace tessivo {
namespace {

constexpr unsigned long patience = 500; ///< ms for a file that is being read at the end

/// A file descriptor that closes itself.
class OpenFile {
public:
    explicit OpenFile(const std::string& path)
        : number_(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {} // a pipe must not be waited for
    ~OpenFile() {
        if (number_ >= 0)
            ::close(number_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] int number() const { return number_; }

private:
    int number_;
};

Error unreadable(int code) {
    return urlError(UrlErrorFileDoesNotExist,
                    "The file cannot be read: " + std::generic_category().message(code));
}

Result<HttpResponse> contentOf(const std::string& path, std::size_t maximum) {
    const OpenFile file(path);
    struct stat status {};
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0)
        return unreadable(errno);
    if (!S_ISREG(status.st_mode))
        return urlError(UrlErrorFileDoesNotExist, "This is not a plain file.");
    HttpResponse answer;
    for (;;) {
        constexpr std::size_t step = 1u << 16u;
        const std::size_t had = answer.body.size();
        if (had > maximum)
            return urlError(UrlErrorTooLarge, "The file is too large.");
        answer.body.resize(had + step);
        const auto count = ::read(file.number(), answer.body.data() + had, step);
        answer.body.resize(had + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count == 0)
            return answer;
        if (count < 0 && errno != EINTR)
            return unreadable(errno);
    }
}

} // namespace

FileReader::FileReader() : thread_(std::make_unique<QThread>()), worker_(std::make_unique<QObject>()) {
    thread_->setObjectName("files");
    worker_->moveToThread(thread_.get());
    thread_->start();
}

FileReader::~FileReader() {
    thread_->quit();
    if (thread_->wait(patience))
        return;
    (void)thread_.release();
    (void)worker_.release();
}

void FileReader::read(const std::string& path, std::size_t maximum, QObject* receiver, Read read) {
    auto reading = [path, maximum, home = std::weak_ptr(home_), to = QPointer(receiver),
                    read = std::move(read)] {
        const auto deliver = [answer = contentOf(path, maximum), to, read] {
            if (to)
                read(answer);
        };
        if (const auto here = home.lock())
            QMetaObject::invokeMethod(here.get(), deliver, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(worker_.get(), std::move(reading), Qt::QueuedConnection);
}

} // namespace tessivo
