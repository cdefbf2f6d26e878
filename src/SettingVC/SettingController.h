#pragma once

#include "Interface/Button.h"
#include "Interface/CollectionView.h"
#include "Interface/IndexPath.h"
#include "Interface/Label.h"
#include "SettingVC/DefaulScreenViewController.h"
#include "SettingVC/SettingCells.h"
#include "SettingVC/SettingControllerDelegate.h"
#include "SettingVC/SettingSection.h"
#include "Support/Screen.h"

#include <memory>
#include <string>
#include <vector>

namespace tessivo {

/// The settings, as a sheet: sections of rows under their headings in one list that scrolls. Each row does
/// one thing at once; there is nothing to save at the end.
class SettingController final : public Screen,
                                public ui::CollectionViewDataSource,
                                public ui::CollectionViewDelegate,
                                public DefaulScreenViewControllerDelegate {
public:
    explicit SettingController(SharedServices& services);
    ~SettingController() override;

    /// Holds a heading and a list of rows for each section, one under the other. The rows are registered by
    /// the section's kind ("feedback"), the heading's label as "feedback.header".
    ui::ScrollView collectionView{controls, "collectionView"};
    ui::View separationView{controls, "separationView"}; ///< the line under the bar
    const std::vector<std::string> eventSizeTitles;
    const std::vector<std::string> defaultScreenTitles;
    std::weak_ptr<SettingControllerDelegate> delegateSettting;
    ui::Label mainLabel{controls, "mainLabel"};
    ui::Button doneButton{controls, "doneButton"};
    ui::Button mainButton{controls, "mainButton"}; ///< the heading; takes the list back to its beginning
    const std::vector<SettingSection> sections;

    [[nodiscard]] std::string screenName() const override { return "SettingController"; }

    void doneButtonTapped() { dismiss(); }
    /// The user chooses a row. A row that does not exist prints an empty line.
    void didSelect(ui::IndexPath path);
    /// Opens the screen that chooses among `titles` the value of `key`; nothing where it has no value.
    void handleViewLiveTap(const std::vector<std::string>& titles, std::string_view key, int type,
                           ui::IndexPath path);
    /// The list of rows of a section.
    [[nodiscard]] ui::CollectionView& rowsOf(int section);

    [[nodiscard]] int numberOfItems(ui::CollectionView& collection) override;
    [[nodiscard]] std::shared_ptr<ui::CollectionViewCell> cellForItem(ui::CollectionView& collection,
                                                                      int item) override;
    [[nodiscard]] ui::Size sizeForItem(ui::CollectionView& collection, int item) override;
    void didSelectItem(ui::CollectionView& collection, int item) override;
    void didSelectOption(const std::string& text, int type, ui::IndexPath path) override;

protected:
    void viewDidLoad() override;
    void screenSizeDidChange() override;

private:
    struct SectionViews;

    [[nodiscard]] int sectionOf(const ui::CollectionView& collection) const;
    [[nodiscard]] std::string savedValue(int row) const;
    [[nodiscard]] std::string headingOf(SettingSection::Kind kind) const;
    void buildBar();
    void placeSections();

    // What the rows do.
    void rate();
    void writeReview();
    void shareTheApp();
    void writeToSupport();
    void open(std::string_view address);

    std::vector<std::unique_ptr<SectionViews>> views_;
};

} // namespace tessivo
