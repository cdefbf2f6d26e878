#pragma once

#include "Interface/Label.h"
#include "bridge/ViewItem.h"

namespace tessivo::shell {

class LabelItem final : public ViewItem {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Labels belong to the program")
    Q_PROPERTY(QString text READ text NOTIFY contentChanged FINAL)
    Q_PROPERTY(QList<tessivo::shell::TextPiece> pieces READ pieces NOTIFY contentChanged FINAL)
    Q_PROPERTY(bool stacked READ stacked NOTIFY contentChanged FINAL)
    Q_PROPERTY(int alignment READ alignment NOTIFY contentChanged FINAL)
    Q_PROPERTY(int lineLimit READ lineLimit NOTIFY contentChanged FINAL)
    Q_PROPERTY(double size READ size NOTIFY contentChanged FINAL)
    Q_PROPERTY(int weight READ weight NOTIFY contentChanged FINAL)
    Q_PROPERTY(QColor color READ color NOTIFY contentChanged FINAL)

public:
    LabelItem(ui::Label& label, const BridgeContext& context, QObject* parent)
        : ViewItem(label, context, parent), label_(label) {}

    [[nodiscard]] QString text() const { return QString::fromStdString(label_.text()); }
    /// The text's stretches; where they are stacked, one for each line, without its line feed.
    [[nodiscard]] QList<TextPiece> pieces() const;
    /// Whether the stretches stand under one another.
    [[nodiscard]] bool stacked() const;
    [[nodiscard]] int alignment() const;
    [[nodiscard]] int lineLimit() const;
    [[nodiscard]] double size() const { return label_.font().size; }
    [[nodiscard]] int weight() const { return static_cast<int>(label_.font().weight); }
    [[nodiscard]] QColor color() const { return context().color(label_.textColor()); }
    [[nodiscard]] QString accessibleName() const override;

private:
    ui::Label& label_;
};

} // namespace tessivo::shell
