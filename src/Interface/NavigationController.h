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

    [[nodiscard]] ViewController& topViewController() const { return *content_; }

protected:
    void childrenWillAppear() override { content_->beginAppearing(); }
    void childrenDidAppear() override { content_->finishAppearing(); }
    void childrenWillDisappear() override { content_->beginDisappearing(); }

private:
    std::shared_ptr<ViewController> content_;
};

} // namespace tessivo::ui
