#include "platform/qt/controls/QtScrollView.h"

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

class Scrolling : public WidgetFixture {
protected:
    void make() {
        area = std::make_unique<QScrollArea>();
        area->setFrameShape(QFrame::NoFrame);
        area->resize(300, 200);
        view = qt::makeScrollView(*area, nullptr);
        area->show();
        view->setDocumentView(first.view());
        turnEventLoop();
    }
    int top() const { return area->verticalScrollBar()->value(); }

    PlainInterfaceFiles files;
    Page first, second;
    std::unique_ptr<QScrollArea> area;
    std::shared_ptr<ScrollView> view;
};

TEST_F(Scrolling, ADocumentFillsTheWidthScrollsWithYUpwardAndSurvivesBeingReplaced) {
    make();
    EXPECT_EQ(view->documentViewBounds(), (Rect{0, 0, double(area->viewport()->width()), 400}));
    view->scrollDocumentTo({0, 250});
    EXPECT_EQ(top(), 150);
    view->scrollBy({0, 1000});
    EXPECT_EQ(top(), 200);
    view->scrollDocumentTo({0, 400});
    EXPECT_EQ(top(), 0);

    for (Page* const page : {&first, &second, &first}) view->setDocumentView(page->view());
    EXPECT_TRUE(first.widget().isVisible());
    EXPECT_EQ(first.appearances, 2);
    EXPECT_EQ(first.disappearances, 1);
    EXPECT_EQ(second.disappearances, 1);
}

TEST_F(Scrolling, EitherSideMayGoFirst) {
    for (const bool controlFirst : {true, false}) {
        make();
        if (controlFirst) view.reset();
        area.reset();
        EXPECT_EQ(first.widget().parentWidget(), nullptr);
        view.reset();
    }
    make();
    auto page = std::make_unique<Page>();
    view->setDocumentView(page->view());
    page.reset();
    EXPECT_EQ(view->documentViewBounds(), Rect());
}

TEST_F(Scrolling, WhatTheFilePutThereIsNotLostWhenAnotherIsShown) {
    QScrollArea filled;
    const QPointer<QWidget> content = new QWidget;
    content->resize(50, 70);
    filled.setWidget(content);
    const auto control = qt::makeScrollView(filled, nullptr);
    EXPECT_EQ(control->documentViewBounds().height, 70);
    control->setDocumentView(first.view());
    EXPECT_TRUE(content);
}

TEST_F(Scrolling, AControlThatGetsTheFocusComesIntoSight) {
    auto* const button = new QPushButton(&first.widget());
    button->setGeometry(0, 350, 80, 30);
    make();
    area->activateWindow();
    button->setFocus(Qt::TabFocusReason);
    EXPECT_GE(top(), 180);
}

}  // namespace
}  // namespace orlamo
