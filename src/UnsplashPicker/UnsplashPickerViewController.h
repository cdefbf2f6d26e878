#pragma once

#include "Interface/Button.h"
#include "Interface/CollectionView.h"
#include "Interface/Label.h"
#include "Interface/ViewController.h"
#include "UnsplashPicker/EmptyView.h"
#include "UnsplashPicker/PagedDataSource.h"
#include "UnsplashPicker/PagingView.h"
#include "UnsplashPicker/UnsplashSearchController.h"
#include "UnsplashPicker/WaterfallLayout.h"

namespace tessivo::unsplash {

class PhotoCell;
class PickerServices;
class UnsplashPickerPreviewViewController;
class UnsplashPickerViewController;

/// Notified of the outcome. Held weakly.
class UnsplashPickerViewControllerDelegate {
public:
    virtual ~UnsplashPickerViewControllerDelegate() = default;

    virtual void photoPickerDidFinish(UnsplashPickerViewController& screen, const Photos& photos) = 0;
    virtual void photoPickerDidCancel(UnsplashPickerViewController& screen) = 0;
};

/// The photos of the editorial collection, or of a search, in a waterfall grid.
class UnsplashPickerViewController final : public ui::ViewController,
                                           public PagedDataSourceDelegate,
                                           public WaterfallLayoutDelegate,
                                           public ui::CollectionViewDataSource,
                                           public ui::CollectionViewDelegate,
                                           public ui::TextInputDelegate {
public:
    UnsplashPickerViewController(PickerServices& services, ui::WindowContext& window);
    ~UnsplashPickerViewController() override;

    ui::Button cancelBarButtonItem{controls, "cancelBarButtonItem"};
    ui::Button doneBarButtonItem{controls, "doneBarButtonItem"};
    ui::Label titleLabel{controls, "titleLabel"};
    UnsplashSearchController searchController;
    ui::CollectionView collectionView;
    PagingView pagingView{controls};
    EmptyView emptyView;
    ui::ActivityIndicator spinner{controls, "spinner"};

    std::weak_ptr<UnsplashPickerViewControllerDelegate> delegate;

    [[nodiscard]] std::string screenName() const override { return "UnsplashPickerViewController"; }
    [[nodiscard]] PagedDataSource& dataSource() const { return *dataSource_; }
    [[nodiscard]] const std::optional<std::string>& searchText() const { return searchText_; }
    [[nodiscard]] WaterfallLayout& layout() { return layout_; }
    /// A configured query takes the search bar's place.
    [[nodiscard]] bool hasSearchBar() const;

    void cancelBarButtonTapped();
    void doneBarButtonTapped();
    /// Fetches the first page where there is none and none is on its way.
    void refresh();
    /// A larger look at the item; null while it has no picture.
    [[nodiscard]] std::shared_ptr<UnsplashPickerPreviewViewController> makePreview(int item);

    /// The keyboard covers the foot of the screen, `height` points high.
    void keyboardWillShow(double height);
    void keyboardWillHide();

    // From the data source, on any thread but for the first.
    void dataSourceWillStartFetching(PagedDataSource& source) override;
    void dataSourceDidFetch(PagedDataSource& source, const Photos& items) override;
    void dataSourceFetchDidFail(PagedDataSource& source, const Error& error) override;

    // From the grid and the search bar.
    [[nodiscard]] ui::Size waterfallSizeForItem(int item) override;
    [[nodiscard]] int numberOfItems(ui::CollectionView& collection) override;
    [[nodiscard]] std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection,
                                                                      int item) override;
    void willDisplayCell(ui::CollectionView& collection, ui::CollectionViewCell& cell, int item) override;
    void didSelectItem(ui::CollectionView& collection, int item) override;
    void didDeselectItem(ui::CollectionView& collection, int item) override;
    bool didHoldItem(ui::CollectionView& collection, int item) override;
    [[nodiscard]] bool shouldReturn(ui::TextInput& input) override;

protected:
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewWillDisappear() override;
    void screenSizeDidChange() override;

private:
    void buildGrid();
    void buildSearch();
    /// Shows the item's photo in its cell, at the width that the cell now has.
    void configure(PhotoCell& cell, int item);
    void setSearchText(const std::optional<std::string>& text);
    void search(const std::optional<std::string>& text);
    void searchTextChanged();
    [[nodiscard]] std::shared_ptr<PagedDataSource> makeSource(PhotosDataSourceFactory::Kind kind,
                                                              std::string text);
    /// Null for an item that the source does not have.
    [[nodiscard]] std::shared_ptr<const UnsplashPhoto> photoOf(int item) const;
    void showFetched(bool hasNew);
    void showState(EmptyViewState state);
    void hideState();
    void selectionChanged();
    void updateTitle();
    void placePagingView();
    void finish(const Photos& photos);
    /// Runs `report` on the main queue, unless the screen has gone or shows another source by then.
    void onMain(PagedDataSource& source, std::function<void(UnsplashPickerViewController&)> report);

    PickerServices& services_;
    WaterfallLayout& layout_; ///< the grid's own
    std::shared_ptr<PagedDataSource> editorialDataSource_;
    std::shared_ptr<PagedDataSource> dataSource_;
    std::optional<std::string> searchText_;
    Subscription gridChanges_;
    Subscription cellChanges_;
    Subscription keyboardChanges_;
    bool onScreen_ = false;
    bool pagingViewOnScreen_ = false;
};

} // namespace tessivo::unsplash
