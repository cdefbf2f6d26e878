#include "UnsplashPicker/UnsplashPickerViewController.h"

#include "Ports/HttpClient.h"
#include "Ports/MainQueue.h"
#include "UnsplashPicker/PhotoCell.h"
#include "UnsplashPicker/PickerServices.h"
#include "UnsplashPicker/UnsplashPickerPreviewViewController.h"

#include <algorithm>
#include <array>

namespace tessivo::unsplash {
namespace {

/// How many items before the end of the grid the next page is requested.
constexpr int fetchDistance = 19;

bool isConnectionError(const Error& error) {
    constexpr std::array codes{UrlErrorNetworkConnectionLost, UrlErrorNotConnectedToInternet,
                               UrlErrorInternationalRoamingOff, UrlErrorCallIsActive, UrlErrorDataNotAllowed};
    return error.domain == urlErrorDomain && std::ranges::find(codes, error.code) != codes.end();
}

/// A title of the table has two forms, "none|some": the second for a selection, with its size for "%d".
std::string titleFor(const std::string& forms, std::size_t selected) {
    const auto bar = forms.find('|');
    if (selected == 0 || bar == std::string::npos)
        return forms.substr(0, bar);
    std::string title = forms.substr(bar + 1);
    if (const auto place = title.find("%d"); place != std::string::npos)
        title.replace(place, 2, std::to_string(selected));
    return title;
}

} // namespace

UnsplashPickerViewController::UnsplashPickerViewController(PickerServices& services,
                                                           ui::WindowContext& window)
    : ViewController(window),
      searchController(controls, services.text("search.placeholder"), services.text("search.clear")),
      collectionView(controls, "collectionView",
                     std::make_unique<WaterfallLayout>(services.platform().console)),
      emptyView(controls, services),
      services_(services),
      layout_(static_cast<WaterfallLayout&>(collectionView.layout())) {}

UnsplashPickerViewController::~UnsplashPickerViewController() {
    if (dataSource_)
        dataSource_->cancelFetch();
}

void UnsplashPickerViewController::viewDidLoad() {
    editorialDataSource_ = makeSource(PhotosDataSourceFactory::Kind::collection,
                                      services_.configuration().editorialCollectionId());
    dataSource_ = editorialDataSource_;
    view().setBackgroundColor(ui::ColorRef::named("mainBack"));
    titleLabel.setFont({17, ui::FontWeight::Semibold});
    titleLabel.setAlignment(ui::TextAlignment::Center);
    cancelBarButtonItem.setImageName("xmark");
    cancelBarButtonItem.setAccessibilityName(services_.text("cancel"));
    cancelBarButtonItem.addTarget(ui::PressEvent::UpInside, [this] { cancelBarButtonTapped(); });
    doneBarButtonItem.setTitle(services_.text("done"));
    doneBarButtonItem.setTitleColor(ui::ColorRef::named("button"));
    view().setAccessibilityName(titleFor(services_.text("title"), 0));
    doneBarButtonItem.setEnabled(false);
    doneBarButtonItem.setHidden(!services_.configuration().allowsMultipleSelection);
    doneBarButtonItem.addTarget(ui::PressEvent::UpInside, [this] { doneBarButtonTapped(); });
    for (ui::View* control : std::initializer_list<ui::View*>{&cancelBarButtonItem, &titleLabel,
                                                              &doneBarButtonItem, &collectionView, &spinner})
        view().addSubview(*control);
    buildGrid();
    buildSearch();
    updateTitle();
    keyboardChanges_ = screen().onKeyboardChange([this] {
        if (const double height = screen().keyboardHeight(); height > 0)
            keyboardWillShow(height);
        else
            keyboardWillHide();
    });
}

void UnsplashPickerViewController::buildGrid() {
    collectionView.registerCell(PhotoCell::reuseIdentifier,
                                [this] { return std::make_shared<PhotoCell>(services_, window()); });
    collectionView.allowsMultipleSelection = services_.configuration().allowsMultipleSelection;
    collectionView.dataSource = weakSelf<ui::CollectionViewDataSource>(this);
    collectionView.delegate = weakSelf<ui::CollectionViewDelegate>(this);
    layout_.delegate = weakSelf<WaterfallLayoutDelegate>(this);
    collectionView.setFrame({0, 0, screen().width(), screen().height()});
    collectionView.addSubview(pagingView);
    gridChanges_ = collectionView.onChange([this](ui::ViewChange change) {
        if (change == ui::ViewChange::Geometry)
            placePagingView();
    });
    cellChanges_ = collectionView.onVisibleCellsChange([this] { placePagingView(); });
    collectionView.panGestureRecognizer()->addTarget(this, [this](ui::GestureRecognizer& pan) {
        if (pan.state() == ui::GestureState::Began && searchController.searchBar.isEditing())
            searchController.searchBar.endEditing();
    });
}

void UnsplashPickerViewController::buildSearch() {
    if (!hasSearchBar())
        return setSearchText(services_.configuration().query);
    auto& searchBar = searchController.searchBar;
    searchBar.delegate = weakSelf<ui::TextInputDelegate>(this);
    searchBar.addEditingChangedTarget([this] { searchTextChanged(); });
    view().addSubview(searchBar);
    searchBar.addSubview(searchController.clearButton);
}

bool UnsplashPickerViewController::hasSearchBar() const {
    return services_.configuration().query.value_or("").empty();
}

std::shared_ptr<PagedDataSource> UnsplashPickerViewController::makeSource(PhotosDataSourceFactory::Kind kind,
                                                                          std::string text) {
    auto source = std::make_shared<PagedDataSource>(
        services_.platform().background, PhotosDataSourceFactory{services_, kind, std::move(text)});
    source->delegate = weakSelf<PagedDataSourceDelegate>(this);
    return source;
}

void UnsplashPickerViewController::viewWillAppear() {
    onScreen_ = true;
    if (dataSource_->items()->empty())
        refresh();
}

void UnsplashPickerViewController::viewWillDisappear() {
    onScreen_ = false;
}

void UnsplashPickerViewController::screenSizeDidChange() {
    const ui::Size size = screen().size();
    const bool needsLayout = layout_.shouldInvalidateLayout(size);
    collectionView.setFrame({0, 0, size.width, size.height});
    if (!needsLayout)
        return;
    collectionView.invalidateLayout();
    for (const auto& [item, cell] : collectionView.visibleCells())
        configure(static_cast<PhotoCell&>(*cell), item);
}

void UnsplashPickerViewController::setSearchText(const std::optional<std::string>& text) {
    const auto former = dataSource_;
    const bool searches = text && !text->empty();
    dataSource_ = searches ? makeSource(PhotosDataSourceFactory::Kind::search, *text) : editorialDataSource_;
    if (former != dataSource_) {
        former->cancelFetch();
        dataSource_->resume();
        spinner.setAnimating(false);
    }
    searchText_ = searches ? text : std::nullopt;
    collectionView.reloadData();
}

void UnsplashPickerViewController::refresh() {
    if (!dataSource_->items()->empty() || dataSource_->isFetching())
        return;
    dataSource_->reset();
    collectionView.reloadData();
    dataSource_->fetchItems();
}

void UnsplashPickerViewController::search(const std::optional<std::string>& text) {
    setSearchText(text);
    refresh();
    collectionView.setContentOffset({0, -collectionView.safeAreaInsets().top});
    hideState();
    selectionChanged();
}

bool UnsplashPickerViewController::shouldReturn(ui::TextInput& input) {
    search(input.text());
    input.endEditing();
    return true;
}

void UnsplashPickerViewController::searchTextChanged() {
    if (searchText_ && searchController.searchBar.text().empty())
        search(std::nullopt);
}

void UnsplashPickerViewController::updateTitle() {
    titleLabel.setText(titleFor(services_.text("title"), collectionView.selectedItems().size()));
}

void UnsplashPickerViewController::selectionChanged() {
    updateTitle();
    doneBarButtonItem.setEnabled(!collectionView.selectedItems().empty());
}

std::shared_ptr<const UnsplashPhoto> UnsplashPickerViewController::photoOf(int item) const {
    const auto items = dataSource_->items();
    return std::cmp_less(item, items->size()) ? (*items)[static_cast<std::size_t>(item)] : nullptr;
}

ui::Size UnsplashPickerViewController::waterfallSizeForItem(int item) {
    const auto photo = photoOf(item);
    return photo ? ui::Size{static_cast<double>(photo->width), static_cast<double>(photo->height)}
                 : ui::Size{};
}

int UnsplashPickerViewController::numberOfItems(ui::CollectionView&) {
    return static_cast<int>(dataSource_->items()->size());
}

std::shared_ptr<ui::CollectionViewCell>
UnsplashPickerViewController::cellForItem(ui::CollectionView& collection, int item) {
    const auto cell =
        std::static_pointer_cast<PhotoCell>(collection.dequeueReusableCell(PhotoCell::reuseIdentifier));
    configure(*cell, item);
    return cell;
}

void UnsplashPickerViewController::configure(PhotoCell& cell, int item) {
    // The picture is asked for at the width of the cell, which must be settled by then.
    cell.place(layout_.frame(item));
    cell.layoutIfNeeded();
    if (const auto photo = photoOf(item))
        cell.photoView.configure(*photo, true);
}

void UnsplashPickerViewController::willDisplayCell(ui::CollectionView&, ui::CollectionViewCell&, int item) {
    if (std::cmp_equal(item + fetchDistance, dataSource_->items()->size()))
        dataSource_->fetchItems();
}

void UnsplashPickerViewController::placePagingView() {
    const auto& place = layout_.pagingViewFrame();
    pagingView.setHidden(!place);
    if (place)
        pagingView.setFrame(*place);
    const bool visible = place && place->intersects(collectionView.bounds());
    if (visible && !pagingViewOnScreen_)
        pagingView.setLoading(dataSource_->isFetching());
    pagingViewOnScreen_ = visible;
}

void UnsplashPickerViewController::didSelectItem(ui::CollectionView&, int item) {
    if (collectionView.allowsMultipleSelection)
        return selectionChanged();
    if (const auto photo = photoOf(item))
        finish({photo});
}

void UnsplashPickerViewController::didDeselectItem(ui::CollectionView&, int) {
    selectionChanged();
}

bool UnsplashPickerViewController::didHoldItem(ui::CollectionView&, int item) {
    const auto preview = makePreview(item);
    if (preview)
        present(preview);
    return preview != nullptr;
}

void UnsplashPickerViewController::doneBarButtonTapped() {
    searchController.searchBar.endEditing();
    Photos chosen;
    for (const int item : collectionView.selectedItems()) {
        if (const auto photo = photoOf(item))
            chosen.push_back(photo);
    }
    finish(chosen);
}

void UnsplashPickerViewController::finish(const Photos& photos) {
    for (const auto& photo : photos)
        services_.sendDownloadPing(*photo);
    if (const auto listener = delegate.lock())
        listener->photoPickerDidFinish(*this, photos);
}

void UnsplashPickerViewController::cancelBarButtonTapped() {
    searchController.searchBar.endEditing();
    if (const auto listener = delegate.lock())
        listener->photoPickerDidCancel(*this);
}

std::shared_ptr<UnsplashPickerPreviewViewController> UnsplashPickerViewController::makePreview(int item) {
    const auto cell = std::static_pointer_cast<PhotoCell>(collectionView.cellForItem(item));
    if (!cell || !cell->photoView.imageView.image().isSet())
        return nullptr;
    return std::make_shared<UnsplashPickerPreviewViewController>(window(), cell->photoView.imageView.image(),
                                                                 cell->photoView.accessibilityName());
}

void UnsplashPickerViewController::keyboardWillShow(double height) {
    collectionView.setContentInset({0, 0, height - collectionView.safeAreaInsets().bottom, 0});
}

void UnsplashPickerViewController::keyboardWillHide() {
    collectionView.setContentInset({});
}

void UnsplashPickerViewController::onMain(PagedDataSource& source,
                                          std::function<void(UnsplashPickerViewController&)> report) {
    services_.platform().mainQueue.post(
        [weak = weak_from_this(), source = source.shared_from_this(), report = std::move(report)] {
            const auto self = std::static_pointer_cast<UnsplashPickerViewController>(weak.lock());
            if (self && self->dataSource_ == source)
                report(*self);
        });
}

void UnsplashPickerViewController::dataSourceWillStartFetching(PagedDataSource&) {
    spinner.setAnimating(true);
}

void UnsplashPickerViewController::dataSourceDidFetch(PagedDataSource& source, const Photos& items) {
    onMain(source, [hasNew = !items.empty()](auto& self) { self.showFetched(hasNew); });
}

void UnsplashPickerViewController::dataSourceFetchDidFail(PagedDataSource& source, const Error& error) {
    if (error.domain == urlErrorDomain && error.code == UrlErrorCancelled)
        return; // a fetch that the screen itself has stopped has not failed
    onMain(source, [state = isConnectionError(error)
                                ? EmptyViewState::noInternetConnection
                                : EmptyViewState::serverError](auto& self) { self.showState(state); });
}

void UnsplashPickerViewController::showFetched(bool hasNew) {
    spinner.setAnimating(false);
    hideState();
    const int shown = collectionView.numberOfItems();
    const int count = static_cast<int>(dataSource_->items()->size());
    if (onScreen_ && shown < count)
        collectionView.insertItems(shown, count - shown);
    else if (shown != count || hasNew)
        collectionView.reloadData();
    // Otherwise nothing has changed: a reload would show the item that asks for more once again, for ever.
    pagingViewOnScreen_ = false; // the foot is shown anew
    placePagingView();
    if (count == 0)
        showState(EmptyViewState::noResults);
}

void UnsplashPickerViewController::showState(EmptyViewState state) {
    spinner.setAnimating(false);
    emptyView.setState(state);
    emptyView.setFrame({0, 0, screen().width(), screen().height()});
    view().addSubview(emptyView);
}

void UnsplashPickerViewController::hideState() {
    emptyView.removeFromSuperview();
}

} // namespace tessivo::unsplash
