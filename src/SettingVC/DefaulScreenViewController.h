#pragma once

#include "Interface/Button.h"
#include "Interface/CollectionView.h"
#include "Interface/ImageView.h"
#include "Interface/IndexPath.h"
#include "Interface/Label.h"
#include "Support/Screen.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessivo {

/// Hears each choice made in an option screen. Held weakly.
class DefaulScreenViewControllerDelegate {
public:
    virtual ~DefaulScreenViewControllerDelegate() = default;
    virtual void didSelectOption(const std::string& text, int type, ui::IndexPath path) = 0;
};

/// One value of an option screen. Its mark says what held when the screen opened; a tap does not move it.
class OptionCell final : public ui::CollectionViewCell {
public:
    OptionCell();

    ui::Label label{controls, "label"};
    ui::ImageView checkmarkImageView{controls, "checkmarkImageView"};

    void setSelected(bool) override {}
};

/// Chooses one value of a short list: the size of the cards, or the tab that opens first. Each tap is saved
/// at once. For the size of the cards a sample card shows what was chosen.
class DefaulScreenViewController final : public Screen,
                                         public ui::CollectionViewDataSource,
                                         public ui::CollectionViewDelegate {
public:
    explicit DefaulScreenViewController(SharedServices& services);

    std::vector<std::string> dataArray;
    /// The choice when the screen opened.
    long selectedItem = 0;
    int type = 0; ///< 0 the size of the cards, 1 the tab that opens first
    std::function<void(const std::string& text)> didSelectItemCallback;
    ui::IndexPath indexpath; ///< the row of the settings that opened this
    std::weak_ptr<DefaulScreenViewControllerDelegate> delegate;

    ui::CollectionView tableView;
    ui::Label titleLabel{controls, "titleLabel"};
    ui::View IslandView{controls, "IslandView"};
    /// The sample card, as it stands on the whole width of the screen.
    ui::View eventView{controls, "eventView"};
    ui::Label timeLabel{controls, "timeLabel"};
    ui::Label eventInformationLabel{controls, "eventInformationLabel"};
    ui::Button prevButton{controls, "prevButton"};

    [[nodiscard]] std::string screenName() const override { return "DefaulScreenViewController"; }

    [[nodiscard]] int numberOfItems(ui::CollectionView& collection) override;
    [[nodiscard]] std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection,
                                                                      int item) override;
    [[nodiscard]] ui::Size sizeForItem(ui::CollectionView& collection, int item) override;
    void didSelectItem(ui::CollectionView& collection, int item) override;

protected:
    void viewDidLoad() override;
    void screenSizeDidChange() override;

private:
    void buildCard();
    void resizeCard();
};

} // namespace tessivo
