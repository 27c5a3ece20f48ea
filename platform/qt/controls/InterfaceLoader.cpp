#include "platform/qt/controls/InterfaceLoader.h"

#include <QCoreApplication>
#include <QFile>
#include <QScrollArea>
#include <algorithm>
#include <utility>

#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/qt/controls/ColorWellButton.h"
#include "platform/qt/controls/ControlFactory.h"
#include "platform/qt/controls/ViewWidget.h"

namespace orlamo::qt {

QString InterfaceTranslator::translate(const char*, const char* text, const char*, int) const {
    if (!isReading || text == nullptr || *text == '\0') return {};
    return QString::fromStdString(Bundle::shared().localizedString(text));
}

/// While it lives, the toolkit's form reader finds no plug-ins: it would load every widget set that is installed for
/// the designer, such as all of Qt Quick.
class InterfaceLoader::NoPlugins {
public:
    NoPlugins() : paths_(QCoreApplication::libraryPaths()) { QCoreApplication::setLibraryPaths({}); }
    ~NoPlugins() { QCoreApplication::setLibraryPaths(paths_); }
    NoPlugins(const NoPlugins&) = delete;
    NoPlugins& operator=(const NoPlugins&) = delete;

private:
    QStringList paths_;
};

InterfaceLoader::InterfaceLoader(std::string_view name, std::vector<InterfaceClass> classes)
    : InterfaceLoader(name, std::move(classes), NoPlugins()) {}

InterfaceLoader::InterfaceLoader(std::string_view name, std::vector<InterfaceClass> classes, const NoPlugins&)
    : name_(name), classes_(std::move(classes)) {}

void InterfaceLoader::complain(std::string_view what) const {
    logLine("interface " + name_ + ": " + std::string(what));
}

std::unique_ptr<QWidget> InterfaceLoader::read(InterfaceTranslator& translator) {
    const auto path = Bundle::shared().pathForResource(name_, "ui");
    if (!path) {
        complain("the bundle has no such file");
        return nullptr;
    }
    QFile file(QString::fromStdString(*path));
    if (!file.open(QIODevice::ReadOnly)) {
        complain("cannot read " + *path + ": " + file.errorString().toStdString());
        return nullptr;
    }
    translator.isReading = true;
    std::unique_ptr<QWidget> root(load(&file));
    translator.isReading = false;
    if (root == nullptr) complain("cannot read " + *path + ": " + errorString().toStdString());
    return root;
}

std::unique_ptr<ScrollViewBehavior> InterfaceLoader::takeBehavior(QWidget& widget) {
    const auto found = behaviors_.find(&widget);
    return found != behaviors_.end() ? std::move(found->second) : nullptr;
}

QWidget* InterfaceLoader::createWidget(const QString& className, QWidget* parent, const QString& name) {
    QWidget* const widget = create(className, parent, name);
    if (widget == nullptr) return nullptr;
    widget->setObjectName(name);
    widgets_.push_back(widget);
    return widget;
}

QWidget* InterfaceLoader::create(const QString& className, QWidget* parent, const QString& name) {
    const auto isCalled = [&className](const InterfaceClass& known) {
        return className == QLatin1String(known.name.data(), static_cast<qsizetype>(known.name.size()));
    };
    const auto found = std::ranges::find_if(classes_, isCalled);
    if (found != classes_.end()) return createOwn(*found, parent);
    if (className == "ColorWell") return new ColorWellButton(parent);
    if (className == "CollectionView") {
        auto* const view = new QWidget(parent);
        view->setProperty(collectionViewProperty, true);
        return view;
    }
    if (className != "Line" && !availableWidgets().contains(className)) {
        complain("no class named " + className.toStdString());
    }
    return QUiLoader::createWidget(className, parent, name);
}

QWidget* InterfaceLoader::createOwn(const InterfaceClass& ownClass, QWidget* parent) {
    if (const auto* makeView = std::get_if<std::function<std::unique_ptr<View>()>>(&ownClass.make)) {
        return new ViewWidget((*makeView)(), parent);
    }
    auto* const area = new QScrollArea(parent);
    behaviors_[area] = std::get<std::function<std::unique_ptr<ScrollViewBehavior>()>>(ownClass.make)();
    return area;
}

}  // namespace orlamo::qt
