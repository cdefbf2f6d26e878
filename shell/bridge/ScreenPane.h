#pragma once

#include <QQuickItem>

namespace tessivo::shell {

/// What one screen, sheet, alert or menu of the window is drawn on: a scope of the keyboard's focus. Enabled,
/// it is the one that the user is on: it takes the focus, to where that was in it before, else to where its
/// drawing wants it, else to its first stop of the Tab key. Disabled, it takes no touch and no key, and
/// assistive technology sees nothing of what it holds.
class ScreenPane : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool modal MEMBER modal_ FINAL)
    Q_PROPERTY(QString title MEMBER title_ FINAL)
    Q_PROPERTY(bool underMenu READ isUnderMenu WRITE setUnderMenu NOTIFY underMenuChanged FINAL)

public:
    explicit ScreenPane(QQuickItem* parent = nullptr);

    /// Whether it stands over another pane, which is out of reach meanwhile.
    [[nodiscard]] bool isModal() const { return modal_; }
    /// What assistive technology calls it.
    [[nodiscard]] const QString& title() const { return title_; }
    /// Whether a menu has opened over it.
    [[nodiscard]] bool isUnderMenu() const { return underMenu_; }
    void setUnderMenu(bool under);

    /// All that it holds is drawn. The focus goes to the control of that place, where there is one.
    Q_INVOKABLE void begin(const QString& place);

Q_SIGNALS:
    void underMenuChanged();
    /// The pane is disabled now. `place` is that of the control that has its focus; empty where it has none.
    void covered(const QString& place);

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    [[nodiscard]] QQuickItem* focused() const;
    void takeFocus();

    bool modal_ = false;
    bool underMenu_ = false;
    QString title_;
};

} // namespace tessivo::shell
