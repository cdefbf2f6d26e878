#include "bridge/StackModel.h"

#include "bridge/ScreenItem.h"

#include <algorithm>

namespace tessivo::shell {
namespace {

bool isFull(const ui::ViewController& screen) {
    return screen.modalPresentationStyle == ui::PresentationStyle::FullScreen ||
           screen.modalPresentationStyle == ui::PresentationStyle::Custom;
}

} // namespace

StackModel::StackModel(ui::PresentationStack& stack, const BridgeContext& context, QObject* parent)
    : QAbstractListModel(parent),
      stack_(stack),
      context_(context),
      changes_(stack.onChange([this] { update(); })) {
    update();
}

StackModel::~StackModel() = default;

int StackModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant StackModel::data(const QModelIndex& index, int role) const {
    if (role != Screen || !index.isValid())
        return {};
    return QVariant::fromValue(rows_[static_cast<std::size_t>(index.row())]);
}

QHash<int, QByteArray> StackModel::roleNames() const {
    return {{Screen, "screen"}};
}

std::vector<std::shared_ptr<ui::ViewController>> StackModel::drawn() const {
    const auto& screens = stack_.screens();
    int fullScreens = stack_.isInTransition() ? 2 : 1;
    auto first = screens.end();
    while (first != screens.begin() && fullScreens > 0) {
        --first;
        if (isFull(**first))
            --fullScreens;
    }
    return {first, screens.end()};
}

void StackModel::update() {
    // Before any drawing goes: a screen that is covered says where the keyboard was on it.
    for (ScreenItem* row : rows_)
        Q_EMIT row->takesActsChanged();
    const auto wanted = drawn();
    for (std::size_t row = rows_.size(); row > 0; --row) {
        const auto& screen = rows_[row - 1]->screen();
        if (std::ranges::any_of(wanted, [&](const auto& held) { return held.get() == &screen; }))
            continue;
        const int index = static_cast<int>(row) - 1;
        places_[&screen] = rows_[row - 1]->place;
        beginRemoveRows({}, index, index);
        rows_[row - 1]->deleteLater();
        rows_.erase(rows_.begin() + index);
        endRemoveRows();
    }
    for (std::size_t row = 0; row < wanted.size(); ++row) {
        if (row < rows_.size() && &rows_[row]->screen() == wanted[row].get())
            continue;
        const int index = static_cast<int>(row);
        auto* const added = ScreenItem::make(wanted[row], context_, this);
        if (const auto left = places_.extract(wanted[row].get()))
            added->place = left.mapped();
        beginInsertRows({}, index, index);
        rows_.insert(rows_.begin() + index, added);
        endInsertRows();
    }
    std::erase_if(places_, [this](const auto& place) {
        return std::ranges::none_of(stack_.screens(),
                                    [&](const auto& screen) { return screen.get() == place.first; });
    });
}

} // namespace tessivo::shell
