#pragma once

#include "Interface/ViewController.h"

namespace tessivo::ui {

enum class AlertStyle { Alert, ActionSheet };
enum class AlertActionStyle { Default, Cancel, Destructive };

struct AlertAction {
    std::string title;
    AlertActionStyle style = AlertActionStyle::Default;
    std::function<void()> handler; ///< may be empty
    bool declines = false;         ///< leaves all as it is, like a cancel action, but not by a tap beside
};

/// A question with its answers, in the order in which they are shown.
class AlertController final : public ViewController {
public:
    AlertController(WindowContext& window, AlertStyle style, std::string title, std::string message);

    [[nodiscard]] std::string screenName() const override { return "AlertController"; }
    [[nodiscard]] AlertStyle style() const { return style_; }
    [[nodiscard]] const std::string& title() const { return title_; }
    [[nodiscard]] const std::string& message() const { return message_; }
    [[nodiscard]] const std::vector<AlertAction>& actions() const { return actions_; }
    void addAction(AlertAction action) { actions_.push_back(std::move(action)); }

    /// The user answers: the alert goes, then the answer's handler is called. An index beyond the actions
    /// does nothing, nor does a second answer.
    void choose(std::size_t index);
    /// The user taps beside it: the cancel action where there is one, otherwise nothing.
    void cancel();
    /// The user presses Escape or Back: the first action that cancels or declines, otherwise nothing.
    void decline();

private:
    AlertStyle style_;
    std::string title_;
    std::string message_;
    std::vector<AlertAction> actions_;
};

} // namespace tessivo::ui
