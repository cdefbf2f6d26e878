#include "Event/PersistentContainer.h"

#include "Ports/Console.h"

#include <utility>

namespace tessivo {
namespace {

/// `["code": "26", "file": "/home/..."]`, with `[:]` for none.
std::string dictionaryText(const std::map<std::string, std::string>& dictionary) {
    std::string text;
    for (const auto& [key, value] : dictionary) {
        if (!text.empty())
            text += ", ";
        text += "\"" + key + "\": \"" + value + "\"";
    }
    return "[" + (text.empty() ? ":" : text) + "]";
}

} // namespace

PersistentContainer::PersistentContainer(std::string name, EventStore& store, Console& console)
    : name_(std::move(name)), viewContext_(store) {
    if (const auto failure = store.load())
        console.stopProgram("Unresolved error " + failure->error.description + ", " +
                            dictionaryText(failure->userInfo));
}

} // namespace tessivo
