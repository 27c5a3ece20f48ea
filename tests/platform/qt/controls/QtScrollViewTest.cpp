#include "platform/qt/controls/QtScrollView.h"

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include "tests/platform/qt/controls/WidgetFixture.h"

namespace orlamo {
namespace {

struct Dropping : ScrollViewBehavior {
    void scrollWheel(ScrollView&, Point delta) override { last = delta; }
    static inline Point last;
};

class Scrolling : public WidgetFixture {
protected:
    void make(std::unique_ptr<ScrollViewBehavior> behavior) {
        area = std::make_unique<QScrollArea>();
        area->setFrameShape(QFrame::NoFrame);
        area->resize(300, 200);
        view = qt::makeScrollView(*area, std::move(behavior));
        area->show();
        view->setDocumentView(first.view());
        turnEventLoop();
    }
    /// Whether the wheel did something.
    bool turnWheel(int angle) {
        QWheelEvent wheel({50, 50}, area->mapToGlobal(QPointF(50, 50)), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(area->viewport(), &wheel);
        return wheel.isAccepted();
    }
    int top() const { return area->verticalScrollBar()->value(); }

    PlainInterfaceFiles files;
    Page first, second;
    std::unique_ptr<QScrollArea> area;
    std::shared_ptr<ScrollView> view;
};

TEST_F(Scrolling, ADocumentFillsTheWidthScrollsWithYUpwardAndSurvivesBeingReplaced) {
    make(nullptr);
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
        make(nullptr);
        if (controlFirst) view.reset();
        area.reset();
        EXPECT_EQ(first.widget().parentWidget(), nullptr);
        view.reset();
    }
    make(nullptr);
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

TEST_F(Scrolling, ABehaviourMayDropTheWheelWhichThenIsLeftToWhatIsAround) {
    make(std::make_unique<Dropping>());
    EXPECT_FALSE(turnWheel(-120));
    EXPECT_GT(Dropping::last.y, 0) << "towards the user is downward";
    make(std::make_unique<ScrollViewBehavior>());
    EXPECT_TRUE(turnWheel(-10000));
    EXPECT_EQ(top(), 200);
    EXPECT_FALSE(turnWheel(-120));
}

TEST_F(Scrolling, AControlThatGetsTheFocusComesIntoSight) {
    auto* const button = new QPushButton(&first.widget());
    button->setGeometry(0, 350, 80, 30);
    make(nullptr);
    area->activateWindow();
    button->setFocus(Qt::TabFocusReason);
    EXPECT_GE(top(), 180);
}

}  // namespace
}  // namespace orlamo
