#pragma once

#include "Interface/ViewController.h"

namespace tessivo::ui {

/// A screen that frames one other, which fills it and appears with it.
class NavigationController : public ViewController {
public:
    /// `content` is never null, and is kept.
    NavigationController(WindowContext& window, std::shared_ptr<ViewController> content)
        : ViewController(window), content_(std::move(content)) {
        content_->setParent(this);
    }
    ~NavigationController() override { content_->setParent(nullptr); }

    [[nodiscard]] std::string screenName() const override { return content_->screenName(); }
    [[nodiscard]] ViewController& topViewController() const { return *content_; }

    /// The bar stands until it is hidden. It holds nothing, so that a window draws the same either way.
    void setNavigationBarHidden(bool hidden) { barHidden_ = hidden; }
    [[nodiscard]] bool isNavigationBarHidden() const { return barHidden_; }

protected:
    void childrenWillAppear() override { content_->beginAppearing(); }
    void childrenDidAppear() override { content_->finishAppearing(); }
    void childrenWillDisappear() override { content_->beginDisappearing(); }

private:
    std::shared_ptr<ViewController> content_;
    bool barHidden_ = false;
};

} // namespace tessivo::ui
