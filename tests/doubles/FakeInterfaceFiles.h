#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/Interface.h"
#include "platform/ViewController.h"
#include "tests/doubles/FakeControls.h"

namespace orlamo {

template <class Kind>
struct FakeOf;
// clang-format off
template <> struct FakeOf<Control> { using Type = FakeControl; };
template <> struct FakeOf<Button> { using Type = FakeButton; };
template <> struct FakeOf<CheckBox> { using Type = FakeCheckBox; };
template <> struct FakeOf<PopUpButton> { using Type = FakePopUpButton; };
template <> struct FakeOf<Slider> { using Type = FakeSlider; };
template <> struct FakeOf<ColorWell> { using Type = FakeColorWell; };
template <> struct FakeOf<TextField> { using Type = FakeTextField; };
template <> struct FakeOf<ImageView> { using Type = FakeImageView; };
template <> struct FakeOf<TableView> { using Type = FakeTableView; };
template <> struct FakeOf<ScrollView> { using Type = FakeScrollView; };
template <> struct FakeOf<CollectionView> { using Type = FakeCollectionView; };
// clang-format on

class FakeInterfaceView;
using FakeInterfaceViews = std::vector<FakeInterfaceView*>;

/// A loaded interface with a fake control for every outlet of its owner; they die with it, as real ones do.
class FakeInterfaceView : public InterfaceView {
public:
    FakeInterfaceView(std::string viewName, InterfaceOwner& viewOwner, Size viewSize,
                      std::shared_ptr<FakeInterfaceViews> living)
        : name(std::move(viewName)), owner(viewOwner), size_(viewSize), living_(std::move(living)) {
        living_->push_back(this);
    }
    ~FakeInterfaceView() override { std::erase(*living_, this); }

    Size size() const override { return size_; }
    void appear() { owner.viewWillAppear(); }
    void disappear() { owner.viewWillDisappear(); }

    const std::string name;
    InterfaceOwner& owner;
    std::map<std::string, std::shared_ptr<Control>, std::less<>> controls;  // by outlet

private:
    Size size_;
    std::shared_ptr<FakeInterfaceViews> living_;
};

/// Interface files that need no files. Through it a test reaches the controls of what is loaded and plays the user.
class FakeInterfaceFiles : public InterfaceFiles {
public:
    std::unique_ptr<InterfaceView> load(std::string_view name, InterfaceOwner& owner) override {
        auto view = std::make_unique<FakeInterfaceView>(std::string(name), owner, viewSize, living_);
        for (const OutletBinding& outlet : owner.outlets()) {
            if (missing.contains(outlet.name)) continue;
            std::visit([&](auto* target) { view->controls[std::string(outlet.name)] = connect(*target); },
                       outlet.target);
        }
        loaded.emplace_back(name);
        if (beforeViewDidLoad) beforeViewDidLoad(*view);
        return view;
    }
    WindowDescription window(std::string_view name) override {
        const auto found = windows.find(name);
        return found == windows.end() ? WindowDescription{} : found->second;
    }
    std::unique_ptr<Popover> createPopover() override {
        popovers.push_back(std::make_shared<FakePopoverRecord>());
        return std::make_unique<FakePopover>(popovers.back());
    }

    // What the files hold.
    Size viewSize{320, 200};
    std::set<std::string, std::less<>> missing;  // outlets that no file has
    std::map<std::string, WindowDescription, std::less<>> windows{
        {"Preferences", {"Orlamo", {800, 560}, {800, 560}, 15}},
        {"PrivilegeWindowController", {"Permissions", {480, 240}, {480, 240}, 3}}};
    std::function<void(FakeInterfaceView&)> beforeViewDidLoad;  // the outlets are set

    // What was done with them.
    std::vector<std::string> loaded;                           // names, in order
    std::vector<std::shared_ptr<FakePopoverRecord>> popovers;  // in order of creation

    /// The view of that file that was loaded last, or null when there is none any more.
    FakeInterfaceView* view(std::string_view name) const {
        const auto found = std::ranges::find(living_->rbegin(), living_->rend(), name, &FakeInterfaceView::name);
        return found == living_->rend() ? nullptr : *found;
    }
    /// The control of an outlet in the view that was loaded last among those that have it. Fails the test when there is
    /// none of that kind, and gives one that belongs to nobody.
    template <class Fake>
    Fake& control(std::string_view outlet) const {
        for (auto each = living_->rbegin(); each != living_->rend(); ++each) {
            const auto found = (*each)->controls.find(outlet);
            if (found == (*each)->controls.end()) continue;
            if (auto* const control = dynamic_cast<Fake*>(found->second.get())) return *control;
        }
        ADD_FAILURE() << "no such control: " << outlet;
        static Fake nobodys;
        return nobodys;
    }
    /// What a control wired to that action does. Fails the test when no loaded view's owner has the action or when it
    /// refuses the sender.
    void perform(std::string_view action, Control& sender) const {
        for (auto each = living_->rbegin(); each != living_->rend(); ++each) {
            for (const ActionBinding& binding : (*each)->owner.actions()) {
                if (binding.name != action) continue;
                EXPECT_TRUE(binding.accepts(sender)) << action << " from a control of another kind";
                if (binding.accepts(sender)) binding.perform(sender);
                return;
            }
        }
        ADD_FAILURE() << "no such action: " << action;
    }
    /// The same from the control of that outlet.
    void performFrom(std::string_view outlet, std::string_view action) const {
        for (auto each = living_->rbegin(); each != living_->rend(); ++each) {
            const auto found = (*each)->controls.find(outlet);
            if (found != (*each)->controls.end()) return perform(action, *found->second);
        }
        ADD_FAILURE() << "no such control: " << outlet;
    }

private:
    template <class Kind>
    static std::shared_ptr<Control> connect(Outlet<Kind>& outlet) {
        auto control = std::make_shared<typename FakeOf<Kind>::Type>();
        outlet = control;
        return control;
    }

    std::shared_ptr<FakeInterfaceViews> living_ = std::make_shared<FakeInterfaceViews>();
    Installation installation_{*this};
};

}  // namespace orlamo
