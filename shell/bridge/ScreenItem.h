#pragma once

#include "Interface/AlertController.h"
#include "Interface/NavigationController.h"
#include "Interface/TabBarController.h"
#include "Interface/ViewController.h"
#include "bridge/ItemSet.h"
#include "bridge/ViewItem.h"

#include <memory>

namespace tessivo::shell {

/// One screen for QML: which drawing it wants, and its controls by name. Keeps the screen.
class ScreenItem : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens belong to the program")
    Q_PROPERTY(QString name READ name CONSTANT FINAL)
    Q_PROPERTY(Kind kind READ kind CONSTANT FINAL)
    Q_PROPERTY(double sheetHeight READ sheetHeight CONSTANT FINAL)
    Q_PROPERTY(tessivo::shell::ViewItem* view READ view CONSTANT FINAL)
    Q_PROPERTY(bool takesActs READ takesActs NOTIFY takesActsChanged FINAL)
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(double bottomInset READ bottomInset NOTIFY bottomInsetChanged FINAL)
    Q_PROPERTY(QString place MEMBER place FINAL)

public:
    /// How the screen stands on the window.
    enum class Kind { Full, Sheet, Alert, ActionSheet };
    Q_ENUM(Kind)

    /// The bridge object for `screen`, of the class for its kind.
    [[nodiscard]] static ScreenItem* make(std::shared_ptr<ui::ViewController> screen,
                                          const BridgeContext& context, QObject* parent);

    [[nodiscard]] QString name() const { return QString::fromStdString(screen_->screenName()); }
    [[nodiscard]] Kind kind() const;
    /// In points; 0 leaves it to the drawing.
    [[nodiscard]] double sheetHeight() const { return screen_->sheetPresentation.height.value_or(0); }
    [[nodiscard]] double bottomInset() const { return screen_->bottomInset(); }
    /// The root of the screen's views, whose place is where the screen is drawn.
    [[nodiscard]] ViewItem* view() { return control(QStringLiteral("view")); }
    [[nodiscard]] const ui::ViewController& screen() const { return *screen_; }

    Q_INVOKABLE tessivo::shell::ViewItem* control(const QString& name) { return controls_.control(name); }
    /// The user drags a sheet away, or leaves it by a tap beside it or a key.
    Q_INVOKABLE void dismiss() {
        if (takesActs())
            screen_->dismiss();
    }
    /// Whether the user's acts are for this screen now.
    [[nodiscard]] bool takesActs() const { return screen_->takesActs(); }
    /// What assistive technology calls the screen; empty where its heading says it.
    [[nodiscard]] virtual QString title() { return view()->accessibleName(); }

    /// Where the keyboard was on the screen when another one covered it; empty for a new screen.
    QString place;

Q_SIGNALS:
    void takesActsChanged();
    void bottomInsetChanged();

protected:
    ScreenItem(std::shared_ptr<ui::ViewController> screen, const BridgeContext& context, QObject* parent);

    [[nodiscard]] const BridgeContext& context() const { return context_; }

private:
    std::shared_ptr<ui::ViewController> screen_;
    const BridgeContext& context_;
    ItemSet controls_;
    Subscription insetChanges_;
};

/// A question with its answers.
class AlertItem final : public ScreenItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Alerts belong to the program")
    Q_PROPERTY(QString message READ message CONSTANT FINAL)
    Q_PROPERTY(QList<tessivo::shell::AlertChoice> choices READ choices CONSTANT FINAL)

public:
    AlertItem(std::shared_ptr<ui::AlertController> alert, const BridgeContext& context, QObject* parent)
        : ScreenItem(alert, context, parent), alert_(*alert) {}

    [[nodiscard]] QString title() override { return QString::fromStdString(alert_.title()); }
    [[nodiscard]] QString message() const { return QString::fromStdString(alert_.message()); }
    [[nodiscard]] QList<AlertChoice> choices() const;
    Q_INVOKABLE void choose(int index) { alert_.choose(static_cast<std::size_t>(index)); }
    Q_INVOKABLE void cancel() { alert_.cancel(); }
    Q_INVOKABLE void decline() { alert_.decline(); }

private:
    ui::AlertController& alert_;
};

/// A screen that frames one other.
class NavigationItem final : public ScreenItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Screens belong to the program")
    Q_PROPERTY(tessivo::shell::ScreenItem* content READ content CONSTANT FINAL)

public:
    NavigationItem(std::shared_ptr<ui::NavigationController> frame, const BridgeContext& context,
                   QObject* parent)
        : ScreenItem(frame, context, parent),
          content_(ScreenItem::make(frame->topViewController().shared_from_this(), context, this)) {}

    [[nodiscard]] ScreenItem* content() const { return content_; }
    [[nodiscard]] QString title() override { return content_->title(); }

private:
    ScreenItem* content_;
};

/// Screens side by side with the bar that chooses between them.
class TabsItem final : public ScreenItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Tabs belong to the program")
    Q_PROPERTY(QList<tessivo::shell::TabEntry> entries READ entries NOTIFY entriesChanged FINAL)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectionChanged FINAL)
    Q_PROPERTY(tessivo::shell::ScreenItem* selected READ selected NOTIFY selectionChanged FINAL)

public:
    TabsItem(std::shared_ptr<ui::TabBarController> tabs, const BridgeContext& context, QObject* parent);

    [[nodiscard]] QList<TabEntry> entries() const;
    [[nodiscard]] int selectedIndex() const { return static_cast<int>(tabs_.selectedIndex()); }
    [[nodiscard]] ScreenItem* selected() const { return selected_; }
    Q_INVOKABLE void select(int index) { tabs_.select(static_cast<std::size_t>(index)); }

Q_SIGNALS:
    void entriesChanged();
    void selectionChanged();

private:
    void follow();

    ui::TabBarController& tabs_;
    ScreenItem* selected_ = nullptr;
    Subscription tabChanges_;
    Subscription barChanges_;
};

} // namespace tessivo::shell
