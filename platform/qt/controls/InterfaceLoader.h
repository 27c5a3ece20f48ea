#pragma once

#include <QTranslator>
#include <QUiLoader>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Interface.h"

namespace orlamo::qt {

/// Answers every text with the bundle's, whatever its context, while an interface file is read; else it is silent.
class InterfaceTranslator : public QTranslator {
public:
    bool isEmpty() const override { return true; }  // keeps the toolkit from telling every widget of a new language
    QString translate(const char* context, const char* text, const char* comment, int count) const override;

    bool isReading = false;
};

/// Reads one interface file into widgets.
class InterfaceLoader : public QUiLoader {
public:
    /// `name` without the ending; it heads the log lines. The classes are those that the file may name.
    InterfaceLoader(std::string_view name, std::vector<InterfaceClass> classes);

    /// Null, after a log line, when there is no such file or it is broken.
    std::unique_ptr<QWidget> read(InterfaceTranslator& translator);

    /// What the file made, in its order; the root first.
    const std::vector<QWidget*>& widgets() const { return widgets_; }
    /// The behaviour that the file names for a scroll view; null when it names none.
    std::unique_ptr<ScrollViewBehavior> takeBehavior(QWidget& widget);
    void complain(std::string_view what) const;

protected:
    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;

private:
    class NoPlugins;

    InterfaceLoader(std::string_view name, std::vector<InterfaceClass> classes, const NoPlugins&);
    QWidget* create(const QString& className, QWidget* parent, const QString& name);
    QWidget* createOwn(const InterfaceClass& ownClass, QWidget* parent);

    std::string name_;
    std::vector<InterfaceClass> classes_;
    std::vector<QWidget*> widgets_;
    std::map<QWidget*, std::unique_ptr<ScrollViewBehavior>> behaviors_;
};

}  // namespace orlamo::qt
