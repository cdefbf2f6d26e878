#include "sqlite/SalvagedQueue.h"

#include "sqlite/QueueRows.h"

#include <sqlite3.h>

#include <memory>
#include <optional>
#include <utility>

namespace tessivo::sqlite {
namespace {

/// How far rows are looked for beyond the last one read, where the table's own count cannot be read.
constexpr std::int64_t mostUnknownRows = 10'000;

struct CloseConnection {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using Connection = std::unique_ptr<sqlite3, CloseConnection>;

Connection open(const std::filesystem::path& file) {
    sqlite3* opened = nullptr;
    sqlite3_open_v2(file.c_str(), &opened, SQLITE_OPEN_READONLY, nullptr);
    return Connection(opened);
}

/// Nothing where the tables that it names cannot be read.
std::optional<Statement> prepare(const Connection& connection, const char* sql) {
    sqlite3_stmt* prepared = nullptr;
    if (sqlite3_prepare_v2(connection.get(), sql, -1, &prepared, nullptr) != SQLITE_OK)
        return std::nullopt;
    return Statement(prepared);
}

/// Whether the row is one that the program can have written: damage may leave other values.
bool isRequest(const QueuedRequest& queued) {
    return queued.sequence > 0 && !queued.request.identifier.empty();
}

/// Reads rows in their order. Returns whether the end of the table was reached.
bool readInOrder(const Connection& connection, QueuedRequests& requests) {
    auto rows = prepare(connection, selectRequests);
    while (rows) {
        const auto step = rows->step();
        if (step != Step::Row)
            return step == Step::Done;
        if (auto queued = readRequest(*rows); isRequest(queued))
            requests.push_back(std::move(queued));
    }
    return true; // there is no such table
}

std::int64_t lastSequence(const Connection& connection, std::int64_t lastRead) {
    auto row = prepare(connection, "SELECT seq FROM sqlite_sequence WHERE name = 'pending'");
    return row && row->step() == Step::Row ? row->integer(0) : lastRead + mostUnknownRows;
}

void readOneByOne(const Connection& connection, QueuedRequests& requests) {
    const auto lastRead = requests.empty() ? 0 : requests.back().sequence;
    auto row = prepare(connection, selectRequest);
    if (!row)
        return;
    const auto last = lastSequence(connection, lastRead);
    for (auto sequence = lastRead + 1; sequence <= last; ++sequence) {
        row->bindInteger(1, sequence);
        if (row->step() == Step::Row) {
            if (auto queued = readRequest(*row); isRequest(queued))
                requests.push_back(std::move(queued));
        }
        row->reset();
    }
}

} // namespace

SalvagedQueue salvageQueue(const std::filesystem::path& file) {
    SalvagedQueue salvaged;
    const auto connection = open(file);
    if (!readInOrder(connection, salvaged.requests))
        readOneByOne(connection, salvaged.requests);
    auto status = prepare(connection, "SELECT status FROM permission");
    if (status && status->step() == Step::Row && status->integer(0) >= 0 && status->integer(0) <= 2)
        salvaged.authorization = static_cast<AuthorizationStatus>(status->integer(0));
    return salvaged;
}

} // namespace tessivo::sqlite
