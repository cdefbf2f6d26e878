#include "sqlite/StoredDates.h"

#include "sqlite/DatabaseFile.h"
#include "sqlite/EventColumns.h"

#include <sqlite3.h>

#include <utility>

namespace tessivo::sqlite {
namespace {

struct KeyedTexts {
    std::int64_t key = 0;
    DateTexts texts;
};

std::optional<std::string> textOf(const Statement& row, int column) {
    const auto text = row.optionalText(column);
    return text ? std::optional(std::string(*text)) : std::nullopt;
}

Result<std::vector<KeyedTexts>> textsIn(Database& database) {
    auto prepared = database.prepare("SELECT key, dateEvent, timeEvent, coalesce(locale, '') FROM events "
                                     "LEFT JOIN dateLocales ON event = key ORDER BY key");
    if (!prepared)
        return prepared.error();
    Statement& row = prepared.value();
    std::vector<KeyedTexts> all;
    Step step = row.step();
    for (; step == Step::Row; step = row.step())
        all.push_back({row.integer(0), {textOf(row, 1), textOf(row, 2), std::string(row.text(3))}});
    if (step == Step::Failed)
        return row.error();
    return all;
}

Outcome write(Database& database, const KeyedTexts& event) {
    auto texts = database.prepare("UPDATE events SET dateEvent = ?1, timeEvent = ?2 WHERE key = ?3");
    if (!texts)
        return texts.error();
    texts.value().bindOptionalText(1, event.texts.date);
    texts.value().bindOptionalText(2, event.texts.time);
    texts.value().bindInteger(3, event.key);
    if (auto error = texts.value().run())
        return error;
    return noteDateLocale(database, event.key, event.texts.locale);
}

} // namespace

Result<StoredDates> StoredDates::open(const std::filesystem::path& file) {
    auto database = Database::open(file, eventSchema);
    if (!database)
        return database.error();
    if (auto error = database.value().execute(makeDateLocales))
        return *std::move(error);
    return StoredDates(file, std::move(database.value()));
}

Result<std::vector<DateTexts>> StoredDates::all() {
    const auto rows = textsIn(database_);
    if (!rows)
        return rows.error();
    std::vector<DateTexts> texts;
    for (const auto& row : rows.value())
        texts.push_back(row.texts);
    return texts;
}

Outcome
StoredDates::rewrite(const std::function<std::optional<DateTexts>(const DateTexts& texts)>& rewritten) {
    if (auto error = keepCopy())
        return error;
    auto transaction = Transaction::begin(database_);
    if (!transaction)
        return transaction.error();
    const auto rows = textsIn(database_);
    if (!rows)
        return rows.error();
    for (const auto& row : rows.value()) {
        const auto texts = rewritten(row.texts);
        if (!texts)
            return Error{"Dates", 0,
                         "The date \"" + row.texts.date.value_or("") + " " + row.texts.time.value_or("") +
                             "\" cannot be parsed."};
        if (auto error = write(database_, {row.key, *texts}))
            return error;
    }
    return transaction.value().commit();
}

Outcome StoredDates::keepCopy() {
    const auto copy = freeName(file_.string() + ".before-");
    // A name of its own until it is whole, so that what bears the name of a copy is one.
    const std::string unfinished = file_.string() + ".copying";
    std::error_code ignored;
    std::filesystem::remove(unfinished, ignored);
    auto copying = database_.prepare("VACUUM INTO ?");
    if (!copying)
        return copying.error();
    copying.value().bindText(1, unfinished);
    if (auto error = copying.value().run())
        return error;
    std::error_code error;
    std::filesystem::permissions(unfinished, std::filesystem::perms(0600), error);
    if (!error)
        std::filesystem::rename(unfinished, copy, error);
    if (error)
        return Error{"SQLite", SQLITE_CANTOPEN,
                     "Cannot make the copy \"" + copy.string() + "\": " + error.message()};
    return std::nullopt;
}

} // namespace tessivo::sqlite
