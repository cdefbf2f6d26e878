#pragma once

#include "Interface/PresentationStack.h"
#include "bridge/BridgeContext.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <memory>
#include <vector>

namespace tessivo::shell {

class ScreenItem;

/// The screens to draw, from the bottom up: the top full screen and what stands on it and, while one slides
/// over the other, the full screen below. The stack itself may be far deeper. Of each screen that is not
/// drawn it remembers where the keyboard was.
class StackModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens belong to the program")

public:
    enum Role { Screen = Qt::UserRole };

    StackModel(ui::PresentationStack& stack, const BridgeContext& context, QObject* parent = nullptr);
    ~StackModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    [[nodiscard]] std::vector<std::shared_ptr<ui::ViewController>> drawn() const;
    void update();

    ui::PresentationStack& stack_;
    const BridgeContext& context_;
    std::vector<ScreenItem*> rows_;
    std::map<const ui::ViewController*, QString> places_; ///< of the screens that are not drawn
    Subscription changes_;
};

} // namespace tessivo::shell
