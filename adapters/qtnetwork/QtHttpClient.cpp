#include "qtnetwork/QtHttpClient.h"

#include "qtnetwork/Exchange.h"
#include "qtnetwork/FileReader.h"

#include <QMetaObject>
#include <QNetworkAccessManager>
#include <QPointer>
#include <QThread>

#include <utility>

namespace tessivo {
namespace {

/// Seen on the client's thread only.
using ExchangeSlot = std::shared_ptr<QPointer<Exchange>>;

class Task final : public HttpTask {
public:
    Task(std::weak_ptr<QObject> context, ExchangeSlot exchange)
        : context_(std::move(context)), exchange_(std::move(exchange)) {}

    void cancel() override {
        const auto context = context_.lock();
        if (!context)
            return;
        const auto cancelling = [exchange = exchange_] {
            if (*exchange)
                (*exchange)->cancel();
        };
        QMetaObject::invokeMethod(context.get(), cancelling, Qt::QueuedConnection);
    }

private:
    std::weak_ptr<QObject> context_;
    ExchangeSlot exchange_;
};

} // namespace

QtHttpClient::QtHttpClient() : thread_(std::make_unique<QThread>()), context_(std::make_shared<QObject>()) {
    thread_->setObjectName("network");
    context_->moveToThread(thread_.get());
    thread_->start();
    const auto making = [this] {
        manager_ = new QNetworkAccessManager;
        files_ = std::make_unique<FileReader>();
    };
    QMetaObject::invokeMethod(context_.get(), making, Qt::BlockingQueuedConnection);
}

QtHttpClient::~QtHttpClient() {
    const auto ending = [this] {
        delete std::exchange(manager_, nullptr); // with the exchanges, which the files answer to
        files_.reset();
    };
    QMetaObject::invokeMethod(context_.get(), ending, Qt::BlockingQueuedConnection);
    thread_->quit();
    thread_->wait();
}

std::shared_ptr<HttpTask> QtHttpClient::start(HttpRequest request, Completion completion) {
    const auto exchange = std::make_shared<QPointer<Exchange>>();
    ++underWay_;
    auto starting = [this, exchange, request = std::move(request), completion = std::move(completion)] {
        if (!manager_)
            return; // the client is going
        *exchange =
            new Exchange(*manager_, *files_, request, [this, completion](Result<HttpResponse> result) {
                completion(std::move(result));
                --underWay_;
                underWay_.notify_all();
            });
        (*exchange)->start();
    };
    QMetaObject::invokeMethod(context_.get(), std::move(starting), Qt::QueuedConnection);
    return std::make_shared<Task>(context_, exchange);
}

void QtHttpClient::waitUntilIdle() const {
    for (int count = underWay_; count != 0; count = underWay_)
        underWay_.wait(count);
}

} // namespace tessivo
