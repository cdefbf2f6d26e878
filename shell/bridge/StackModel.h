#pragma once

#include "Interface/PresentationStack.h"
#include "bridge/BridgeContext.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace tessivo::shell {

class ScreenItem;

/// The screens to draw, from the bottom up: the top full screen and what stands on it and, while one slides
/// over the other, the full screen below. The stack itself may be far deeper.
class StackModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens belong to the program")
    Q_PROPERTY(bool sliding READ sliding NOTIFY slidingChanged FINAL)

public:
    enum Role { Screen = Qt::UserRole };

    StackModel(ui::PresentationStack& stack, const BridgeContext& context, QObject* parent = nullptr);
    ~StackModel() override;

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
    /// While screens slide, touches are for none of them.
    [[nodiscard]] bool sliding() const { return stack_.isInTransition(); }

Q_SIGNALS:
    void slidingChanged();

private:
    [[nodiscard]] std::vector<std::shared_ptr<ui::ViewController>> drawn() const;
    void update();

    ui::PresentationStack& stack_;
    const BridgeContext& context_;
    std::vector<ScreenItem*> rows_;
    Subscription changes_;
};

} // namespace tessivo::shell
