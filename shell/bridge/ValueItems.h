#pragma once

#include "Interface/ActivityIndicator.h"
#include "Interface/DatePicker.h"
#include "Interface/ImageView.h"
#include "Interface/SegmentedControl.h"
#include "Interface/Switch.h"
#include "bridge/ViewItem.h"

#include <QElapsedTimer>
#include <QStringList>

namespace tessivo::shell {

class SwitchItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Switches belong to the program")
    Q_PROPERTY(bool on READ on NOTIFY contentChanged FINAL)

public:
    SwitchItem(ui::Switch& control, const BridgeContext& context, QObject* parent)
        : ViewItem(control, context, parent), control_(control) {}

    [[nodiscard]] bool on() const { return control_.isOn(); }
    Q_INVOKABLE void toggle() { control_.toggle(); }

private:
    ui::Switch& control_;
};

class SegmentedItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Segments belong to the program")
    Q_PROPERTY(QStringList titles READ titles NOTIFY contentChanged FINAL)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY contentChanged FINAL)
    Q_PROPERTY(QColor selectedTint READ selectedTint NOTIFY contentChanged FINAL)

public:
    SegmentedItem(ui::SegmentedControl& control, const BridgeContext& context, QObject* parent)
        : ViewItem(control, context, parent), control_(control) {}

    [[nodiscard]] QStringList titles() const;
    [[nodiscard]] int selectedIndex() const { return control_.selectedIndex(); }
    [[nodiscard]] QColor selectedTint() const { return context().color(control_.selectedTint()); }
    Q_INVOKABLE void select(int index) { control_.select(index); }

private:
    ui::SegmentedControl& control_;
};

class DatePickerItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Pickers belong to the program")
    Q_PROPERTY(int wheelCount READ wheelCount CONSTANT FINAL)

public:
    DatePickerItem(ui::DatePicker& picker, const BridgeContext& context, QObject* parent)
        : ViewItem(picker, context, parent), picker_(picker) {}

    [[nodiscard]] int wheelCount() const { return static_cast<int>(picker_.wheelCount()); }
    Q_INVOKABLE QString wheelName(int wheel) const;
    Q_INVOKABLE QStringList rows(int wheel) const;
    Q_INVOKABLE int selectedRow(int wheel) const;
    Q_INVOKABLE bool wraps(int wheel) const;
    Q_INVOKABLE void turn(int wheel, int row) { picker_.turn(static_cast<std::size_t>(wheel), row); }
    /// The user types on a wheel: it turns to the row that is, or begins with, what was typed without a
    /// longer pause. Says whether it was something to type.
    Q_INVOKABLE bool type(int wheel, const QString& characters);

private:
    [[nodiscard]] int rowFor(int wheel, const QString& typed) const;

    ui::DatePicker& picker_;
    int typedWheel_ = -1;
    QString typed_;
    QElapsedTimer sinceTyped_;
};

class ActivityItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Spinners belong to the program")
    Q_PROPERTY(bool animating READ animating NOTIFY contentChanged FINAL)

public:
    ActivityItem(ui::ActivityIndicator& spinner, const BridgeContext& context, QObject* parent)
        : ViewItem(spinner, context, parent), spinner_(spinner) {}

    [[nodiscard]] bool animating() const { return spinner_.isAnimating(); }

private:
    ui::ActivityIndicator& spinner_;
};

class ImageItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Pictures belong to the program")
    Q_PROPERTY(QString image READ image NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool loaded READ loaded NOTIFY contentChanged FINAL)
    Q_PROPERTY(QColor tint READ tint NOTIFY contentChanged FINAL)

public:
    ImageItem(ui::ImageView& view, const BridgeContext& context, QObject* parent)
        : ViewItem(view, context, parent), view_(view) {}

    [[nodiscard]] const ui::ImageView& view() const { return view_; }
    [[nodiscard]] QString image() const { return QString::fromStdString(view_.image().name); }
    /// Whether it is a picture that was loaded, and not one of the resources or none.
    [[nodiscard]] bool loaded() const { return view_.image().bitmap != nullptr; }
    [[nodiscard]] QColor tint() const { return context().color(view_.tint()); }

private:
    ui::ImageView& view_;
};

} // namespace tessivo::shell
