// One drawing pass of the panel against filling the same window once with one colour, and its layout alone.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "panel/CanvasView.h"
#include "platform/qt/DisplayList.h"
#include "platform/qt/QtTextMetrics.h"
#include "platform/qt/Replay.h"
#include "platform/qt/TextCache.h"
#include "tests/doubles/FakeDesktop.h"

namespace orlamo {
namespace {

constexpr int systemEntries = 30;

class NothingPainted : public GraphicsContext {
public:
    void fill(const Path& path, const Color&) override { benchmark::DoNotOptimize(path.elements.data()); }
    void drawText(std::string_view text, int, const Color&, Point) override { benchmark::DoNotOptimize(text.data()); }
    void pushOrigin(Point) override {}
    void popOrigin() override {}
};

/// A panel of so many entries, every tenth a heading, in a window of its own.
class Panel {
public:
    explicit Panel(std::int64_t entries) {
        desktop.defaults.values["isContainsAppleMenu"] = true;
        appMenuItems.clear();
        menuItemKeyCodes.clear();
        menuItemElements.clear();
        for (std::int64_t i = 0; i < entries; ++i) {
            if (i % 10 == 0) {
                appMenuItems.emplace_back("Menu " + std::to_string(i));
                continue;
            }
            const std::string title = "Shortcut of item " + std::to_string(i);
            appMenuItems.emplace_back(MenuItemRecord{"Menu", title, i % 2 == 0 ? "⌘" : "⇧⌘", "K", ""});
            menuItemKeyCodes.push_back({40, 0});
            menuItemElements.push_back(FakeAccessibility::reference(nullptr));
        }
        appMenuItems.emplace_back("Generated");
        auto created = CanvasView::initWithFrame({0, 0, 1720, 980});
        systemShortcutList.assign(systemEntries, SystemShortcutRecord{"Keyboard//Move focus", "⌃", "A"});
        systemKeyCombos.assign(systemEntries, {0, 0x40000});
        auto root = std::make_unique<View>(Rect{0, 0, 1720, 980});
        root->addSubview(std::move(created));
        window.setContentView(std::move(root));
        desktop.log.lines.clear();
    }

    void record(GraphicsContext& context) {
        window.display(context);
        desktop.log.lines.clear();
    }
    QImage image() const {
        const Size size = window.frame().size();
        return QImage(static_cast<int>(size.width), static_cast<int>(size.height), QImage::Format_ARGB32_Premultiplied);
    }
    double height() const { return window.frame().height; }

    FakeDesktop desktop;
    qt::TextCache texts;
    qt::QtTextMetrics metrics{texts};
    Service<TextMetrics>::Installation installation{metrics};
    Window window{{0, 0, 1720, 980}, Window::borderless, Window::Backing::buffered, Window::Defer::no};
};

void pass(benchmark::State& state) {
    Panel panel(state.range(0));
    qt::DisplayList list;
    const auto draw = [&](QImage& image) {
        list.clear();
        panel.record(list);
        list.finish();
        QPainter painter(&image);
        qt::replay(list, painter, panel.height(), 1, image.rect(), panel.texts);
    };
    QImage first = panel.image();
    draw(first);  // fits the window to its content
    QImage image = panel.image();
    image.fill(Qt::black);
    for (auto _ : state) draw(image);
    state.SetComplexityN(state.range(0));
}

void layout(benchmark::State& state) {
    Panel panel(state.range(0));
    NothingPainted nothing;
    panel.record(nothing);
    for (auto _ : state) panel.record(nothing);
    state.SetComplexityN(state.range(0));
}

void fill(benchmark::State& state) {
    Panel panel(state.range(0));
    NothingPainted nothing;
    panel.record(nothing);
    QImage image = panel.image();
    for (auto _ : state) {
        QPainter painter(&image);
        painter.fillRect(image.rect(), QColor(30, 30, 34, 200));
    }
    state.counters["pixels"] = static_cast<double>(image.width()) * image.height();
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    for (const int entries : {50, 200, 500, 5000}) benchmark->Arg(entries);
    benchmark->Unit(benchmark::kMicrosecond);
}

BENCHMARK(fill)->Apply(sizes);
BENCHMARK(pass)->Apply(sizes)->Complexity(benchmark::oN);
BENCHMARK(layout)->Apply(sizes)->Complexity(benchmark::oN);

}  // namespace
}  // namespace orlamo

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
