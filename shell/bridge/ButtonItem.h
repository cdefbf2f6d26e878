#pragma once

#include "Interface/Button.h"
#include "bridge/MenuItem.h"
#include "bridge/ViewItem.h"

#include <memory>

namespace tessivo::shell {

class ButtonItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Buttons belong to the program")
    Q_PROPERTY(QString title READ title NOTIFY contentChanged FINAL)
    Q_PROPERTY(QString image READ image NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool enabled READ enabled NOTIFY contentChanged FINAL)
    Q_PROPERTY(double size READ size NOTIFY contentChanged FINAL)
    Q_PROPERTY(int weight READ weight NOTIFY contentChanged FINAL)
    Q_PROPERTY(QColor titleColor READ titleColor NOTIFY contentChanged FINAL)
    Q_PROPERTY(QColor tint READ tint NOTIFY contentChanged FINAL)

public:
    ButtonItem(ui::Button& button, const BridgeContext& context, QObject* parent)
        : ViewItem(button, context, parent),
          button_(button),
          menuRequests_(button.onMenuRequest([this] { openMenu(); })) {}

    [[nodiscard]] QString title() const { return QString::fromStdString(button_.title()); }
    [[nodiscard]] QString image() const { return QString::fromStdString(button_.imageName()); }
    [[nodiscard]] bool enabled() const { return button_.isEnabled(); }
    [[nodiscard]] double size() const { return button_.font().size; }
    [[nodiscard]] int weight() const { return static_cast<int>(button_.font().weight); }
    [[nodiscard]] QColor titleColor() const { return context().color(button_.titleColor()); }
    [[nodiscard]] QColor tint() const { return context().color(button_.tint()); }
    [[nodiscard]] QString accessibleName() const override {
        const QString own = ViewItem::accessibleName();
        return own.isEmpty() ? title() : own;
    }

    Q_INVOKABLE void press() { button_.press(ui::PressEvent::Down); }
    Q_INVOKABLE void releaseInside() { button_.press(ui::PressEvent::UpInside); }
    Q_INVOKABLE void releaseOutside() { button_.press(ui::PressEvent::UpOutside); }

Q_SIGNALS:
    /// The menu stays until the next one opens.
    void menuOpened(tessivo::shell::MenuItem* menu);

private:
    void openMenu() {
        menu_ = std::make_unique<MenuItem>(button_.menu(), this);
        Q_EMIT menuOpened(menu_.get());
    }

    ui::Button& button_;
    std::unique_ptr<MenuItem> menu_;
    Subscription menuRequests_;
};

} // namespace tessivo::shell
