#pragma once

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <string>

#include "platform/appcast/UpdateCheck.h"
#include "platform/qt/QtApplication.h"

namespace orlamo::appcast {

/// What a check shows: that it runs, and how it ended. Escape closes it.
class UpdateWindow final : public QDialog {
public:
    /// `program` hears of the window, so that the desktop lists it as the program's others; may be null.
    explicit UpdateWindow(qt::QtApplication* program);

    void showChecking();
    /// `currentVersion`, the program's own, stands in some of the texts.
    void showResult(const CheckResult& result, const std::string& currentVersion);

    /// To the front of the screen, with the keyboard where the desktop lets it: for a user who asked.
    void bringForward();
    /// On the screen without taking the keyboard from what the user is doing.
    void appear();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void place();
    void build();
    QLayout* buildWords();
    void show(const std::string& title, const std::string& message);
    void showNewVersion(const Item& item, const std::string& currentVersion);
    /// As high as its contents need.
    void fit();
    void openPage();

    qt::QtApplication* const program_;
    QLabel icon_;
    QLabel title_;
    QLabel message_;
    QProgressBar progress_;
    QPlainTextEdit notes_;
    QPushButton dismiss_;   // Cancel, Later, Close
    QPushButton openPage_;  // of a new version with a page
    QUrl page_;
};

}  // namespace orlamo::appcast
