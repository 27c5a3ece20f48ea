#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <fstream>

#include "platform/qt/controls/ColorWellButton.h"
#include "platform/qt/controls/ControlAdapter.h"
#include "platform/qt/controls/QtInterfaceFiles.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

constexpr const char* page = R"(<ui version="4.0"><class>Page</class><widget class="QWidget" name="Page">
<property name="geometry"><rect><x>0</x><y>0</y><width>300</width><height>200</height></rect></property>
<layout class="QVBoxLayout" name="rows">
<item><widget class="QCheckBox" name="box"><property name="text"><string>box.title</string></property>
 <property name="action" stdset="0"><string notr="true">check:</string></property></widget></item>
<item><widget class="QPushButton" name="button"><property name="text"><string>lacking.key</string></property>
 <property name="image" stdset="0"><string notr="true">picture</string></property>
 <property name="action" stdset="0"><string notr="true">press:</string></property></widget></item>
<item><widget class="QComboBox" name="choice">
 <property name="action" stdset="0"><string notr="true">choose:</string></property>
 <item><property name="text"><string notr="true">box.title</string></property></item>
 <item><property name="text"><string>item.title</string></property></item></widget></item>
<item><widget class="QSlider" name="slider"><property name="value"><number>7</number></property>
 <property name="action" stdset="0"><string notr="true">slide:</string></property></widget></item>
<item><widget class="ColorWell" name="well"><property name="color" stdset="0"><string notr="true">#ff0000</string></property>
 <property name="action" stdset="0"><string notr="true">colour:</string></property></widget></item>
<item><widget class="QLabel" name="label"><property name="text"><string>box.title</string></property></widget></item>
<item><widget class="QLabel" name="picture"><property name="image" stdset="0"><string notr="true">picture</string></property></widget></item>
<item><widget class="Tinted" name="tinted"><property name="strength" stdset="0"><double>0.5</double></property>
 <property name="colour" stdset="0"><string notr="true">#800000ff</string></property></widget></item>
</layout></widget><customwidgets>
<customwidget><class>ColorWell</class><extends>QPushButton</extends></customwidget>
<customwidget><class>Tinted</class><extends>QWidget</extends></customwidget></customwidgets></ui>)";

struct Tinted : View {
    Tinted() : View({}) {}
    bool setValueForKey(const Attribute& value, std::string_view key) override {
        if (key == "strength") strength = std::get<double>(value);
        if (key == "colour") colour = std::get<Color>(value);
        return key == "strength" || key == "colour";
    }
    void awakeFromNib() override { strengthWhenAwake = strength; }
    double strength = 0;
    double strengthWhenAwake = 0;
    Color colour;
};

struct Owner : InterfaceOwner {
    Outlet<CheckBox> box;
    Outlet<Button> button;
    Outlet<PopUpButton> choice;
    Outlet<Slider> slider;
    Outlet<ColorWell> well;
    Outlet<TextField> label;
    Outlet<Slider> wrong;  // bound where a test says so
    std::string wrongName;
    std::vector<ActionBinding> replacedActions;
    std::vector<std::string> done;
    Tinted* view = nullptr;

    std::vector<OutletBinding> outlets() override {
        std::vector<OutletBinding> all{{"box", &box},       {"button", &button}, {"choice", &choice},
                                       {"slider", &slider}, {"well", &well},     {"label", &label}};
        if (!wrongName.empty()) all.push_back({wrongName, &wrong});
        return all;
    }
    std::vector<ActionBinding> actions() override {
        if (!replacedActions.empty()) return replacedActions;
        return {action("check:", *this, &Owner::check), action("press:", *this, &Owner::press),
                action("choose:", *this, &Owner::choose), action("slide:", *this, &Owner::slide),
                action("colour:", *this, &Owner::colour)};
    }
    std::vector<InterfaceClass> classes() override {
        return {{"Tinted", [this] {
                     auto made = std::make_unique<Tinted>();
                     view = made.get();
                     return std::unique_ptr<View>(std::move(made));
                 }}};
    }
    void viewWillAppear() override { done.push_back("appear"); }
    void viewWillDisappear() override { done.push_back("disappear"); }

    void check(CheckBox& sender) { done.push_back("check " + std::to_string(sender.doubleValue())); }
    void press(Button& sender) { done.push_back("press " + sender.title()); }
    void choose(PopUpButton& sender) { done.push_back("choose " + *sender.titleOfSelectedItem()); }
    void slide(Slider& sender) { done.push_back("slide " + std::to_string(sender.integerValue())); }
    void colour(ColorWell& sender) { done.push_back("colour " + std::to_string(sender.color().green)); }
};

class InterfaceFile : public WidgetFixture {
protected:
    InterfaceFile() {
        write("Page.ui", page);
        write("picture.svg",
              R"(<svg xmlns="http://www.w3.org/2000/svg" width="20" height="10"><rect width="20" height="10"/></svg>)");
        bundle.strings = {{"box.title", "Kiste"}, {"item.title", "Posten"}};
    }
    void write(const std::string& name, std::string_view text) {
        const std::string path = folder.filePath(QString::fromStdString(name)).toStdString();
        std::ofstream(path) << text;
        bundle.resources[name] = path;
    }
    void load() { view = files.load("Page", owner); }
    QWidget& root() { return qt::native(*view).widget(); }
    template <class Widget>
    Widget& widget(const char* name) {
        return *static_cast<Widget*>(root().findChild<QWidget*>(name));
    }

    QTemporaryDir folder;
    FakeBundle bundle;
    qt::QtInterfaceFiles files;
    Owner owner;
    std::unique_ptr<InterfaceView> view;
};

TEST_F(InterfaceFile, WhatTheFileSaysReachesTheOutletsAndTheOwnersViews) {
    load();
    EXPECT_TRUE(log.lines.empty()) << log.lines.front();
    EXPECT_GT(view->size().height, 200) << "its controls need more";
    EXPECT_EQ(owner.slider.lock()->integerValue(), 7);
    EXPECT_EQ(owner.well.lock()->color(), (Color{1, 0, 0, 1}));
    EXPECT_EQ(widget<QLabel>("picture").pixmap().size(), QSize(20, 10));
    EXPECT_FALSE(widget<QPushButton>("button").icon().isNull());
    EXPECT_EQ(owner.view->strengthWhenAwake, 0.5);
    EXPECT_NEAR(owner.view->colour.alpha, 0.5, 0.01);
}

TEST_F(InterfaceFile, TextsAreKeysOfTheStringTableUnlessTheFileSaysThatTheyAreNotAndShownLetterForLetter) {
    load();
    EXPECT_EQ(owner.box.lock()->title(), "Kiste");
    EXPECT_EQ(owner.choice.lock()->titleOfSelectedItem(), "box.title");
    EXPECT_EQ(widget<QComboBox>("choice").itemText(1), "Posten");
    EXPECT_EQ(QCoreApplication::translate("Page", "box.title"), "box.title") << "only while a file is read";
    owner.button.lock()->setTitle("Cut & <b>paste</b>");
    owner.label.lock()->setStringValue("<b>1</b>");
    EXPECT_EQ(owner.button.lock()->title(), "Cut & <b>paste</b>");
    EXPECT_EQ(widget<QLabel>("label").textFormat(), Qt::PlainText);
}

TEST_F(InterfaceFile, TheUsersChangesPerformActionsAndTheProgramsDoNot) {
    load();
    owner.box.lock()->setState(ControlState::on);
    owner.box.lock()->setState(ControlState::mixed);
    EXPECT_EQ(owner.box.lock()->state(), ControlState::mixed);
    owner.button.lock()->setState(ControlState::on);
    owner.choice.lock()->selectItemWithTitle("Posten");
    owner.choice.lock()->selectItemWithTitle("posten");
    EXPECT_EQ(owner.choice.lock()->titleOfSelectedItem(), "Posten");
    EXPECT_TRUE(owner.done.empty()) << owner.done.front();

    widget<QCheckBox>("box").click();
    widget<QPushButton>("button").click();
    pressKey(widget<QComboBox>("choice"), Qt::Key_Up);
    pressKey(widget<QSlider>("slider"), Qt::Key_Up);
    auto& well = widget<qt::ColorWellButton>("well");
    well.setColor(Qt::green);
    well.chosen();
    EXPECT_EQ(owner.done, (std::vector<std::string>{"check 1.000000", "press lacking.key", "choose box.title",
                                                    "slide 8", "colour 1.000000"}));
    EXPECT_EQ(owner.button.lock()->state(), ControlState::on) << "a push button keeps what it was given";
}

TEST_F(InterfaceFile, OutletsAreEmptyOnceTheViewIsGone) {
    load();
    const auto kept = owner.box.lock();
    delete &root();
    EXPECT_TRUE(kept->isHidden());
    EXPECT_EQ(kept->title(), "");
    view.reset();
    EXPECT_TRUE(owner.button.expired());
}

TEST_F(InterfaceFile, AMistakeIsOneLineInTheLogAndTheRestWorks) {
    const std::vector<ActionBinding> right = owner.actions();
    auto lacking = right, unused = right, fromAnother = right;
    lacking.pop_back();
    unused.push_back(action("rest:", owner, &Owner::press));
    fromAnother[0] = action("check:", owner, &Owner::slide);
    const struct {
        const char* outlet;
        std::vector<ActionBinding> actions;
        const char* line;
    } mistakes[] = {
        {"absent", right, "no control named absent"},
        {"box", right, "box is a QCheckBox, which is not what the outlet takes"},
        {"", lacking, "well names the action colour:, which nobody performs"},
        {"", unused, "no control names the action rest:"},
        {"", fromAnother, "box is a QCheckBox, which the action check: does not take"},
    };
    for (const auto& [outlet, actions, line] : mistakes) {
        owner.wrongName = outlet;
        owner.replacedActions = actions;
        log.lines.clear();
        load();
        EXPECT_EQ(log.lines, std::vector{std::string("interface Page: ") + line});
        EXPECT_TRUE(owner.box.lock());
        EXPECT_FALSE(owner.wrong.lock());
    }
}

TEST_F(InterfaceFile, AMissingAndABrokenFileGiveAnEmptyViewAndOneLineEach) {
    write("Broken.ui", "<ui><widget");
    for (const char* name : {"Absent", "Broken"}) {
        EXPECT_NE(files.load(name, owner), nullptr);
        EXPECT_TRUE(owner.box.expired());
    }
    ASSERT_EQ(log.lines.size(), 2U);
    EXPECT_EQ(log.lines[0], "interface Absent: the bundle has no such file");
    EXPECT_TRUE(log.lines[1].starts_with("interface Broken: cannot read ")) << log.lines[1];
}

}  // namespace
}  // namespace orlamo
