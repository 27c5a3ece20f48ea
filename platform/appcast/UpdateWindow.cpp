#include "platform/appcast/UpdateWindow.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/Workspace.h"

namespace orlamo::appcast {

namespace {

// Points.
constexpr int windowWidth = 460;
constexpr int margin = 28;
constexpr int spacing = 12;
constexpr int notesHeight = 180;
constexpr int iconSize = 64;

/// The table's text with the value in the place of its %@.
std::string localized(std::string_view key, std::string_view value) {
    std::string text = NSLocalizedString(key);
    if (const auto at = text.find("%@"); at != std::string::npos) text.replace(at, 2, value);
    return text;
}

std::string failureMessage(Outcome outcome) {
    switch (outcome) {
        case Outcome::badFeedAddress:
            return NSLocalizedString("update.failed.address");
        case Outcome::insecureRedirect:
            return NSLocalizedString("update.failed.insecureRedirect");
        case Outcome::tooManyRedirects:
            return NSLocalizedString("update.failed.tooManyRedirects");
        case Outcome::unreachable:
            return NSLocalizedString("update.failed.unreachable");
        case Outcome::untrusted:
            return NSLocalizedString("update.failed.untrusted");
        case Outcome::timedOut:
            return NSLocalizedString("update.failed.timedOut");
        case Outcome::refused:
            return NSLocalizedString("update.failed.refused");
        case Outcome::tooLarge:
            return NSLocalizedString("update.failed.tooLarge");
        case Outcome::unreadable:
            return NSLocalizedString("update.failed.unreadable");
        case Outcome::upToDate:
        case Outcome::newVersion:
        case Outcome::noFeedAddress:
            break;
    }
    return "";
}

void setText(QLabel& label, const std::string& text) {
    label.setText(QString::fromStdString(text));
    label.setVisible(!text.empty());
}

}  // namespace

UpdateWindow::UpdateWindow(qt::QtApplication* program) : program_(program) {
    setObjectName("updateWindow");
    setWindowTitle(QString::fromStdString(NSLocalizedString("update.window.title")));
    build();
}

void UpdateWindow::build() {
    title_.setObjectName("updateTitle");
    message_.setObjectName("updateMessage");
    for (QLabel* const label : {&title_, &message_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    // How the style sheet knows them.
    title_.setProperty("role", "subtitle");
    message_.setProperty("role", "body");
    const QIcon icon = windowIcon();
    icon_.setPixmap(icon.pixmap(iconSize, iconSize));
    icon_.setVisible(!icon.isNull());

    progress_.setObjectName("updateProgress");
    progress_.setTextVisible(false);
    progress_.setAccessibleName(QString::fromStdString(NSLocalizedString("update.checking.title")));
    notes_.setObjectName("updateNotes");
    notes_.setReadOnly(true);
    notes_.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    notes_.setTabChangesFocus(true);
    notes_.setMinimumHeight(notesHeight);
    notes_.setAccessibleName(QString::fromStdString(NSLocalizedString("update.notes")));

    dismiss_.setObjectName("updateDismiss");
    openPage_.setObjectName("updateOpenPage");
    openPage_.setText(QString::fromStdString(NSLocalizedString("update.button.openPage")));
    connect(&dismiss_, &QPushButton::clicked, this, &QDialog::reject);
    connect(&openPage_, &QPushButton::clicked, this, [this] { openPage(); });

    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(spacing);
    buttons->addStretch();
    buttons->addWidget(&dismiss_);
    buttons->addWidget(&openPage_);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    column->addLayout(buildWords());
    column->addWidget(&notes_, 1);
    column->addSpacing(spacing);
    column->addLayout(buttons);
    setMinimumWidth(windowWidth);
    resize(windowWidth, 0);
}

QLayout* UpdateWindow::buildWords() {
    auto* const words = new QVBoxLayout;
    words->setSpacing(spacing);
    words->addWidget(&title_);
    words->addWidget(&message_);
    words->addWidget(&progress_);
    words->addStretch();
    auto* const row = new QHBoxLayout;
    row->setSpacing(margin);
    row->addWidget(&icon_, 0, Qt::AlignTop);
    row->addLayout(words, 1);
    return row;
}

void UpdateWindow::showChecking() {
    page_.clear();
    notes_.hide();
    openPage_.hide();
    progress_.setRange(0, 0);
    progress_.show();
    dismiss_.setText(QString::fromStdString(NSLocalizedString("update.button.cancel")));
    show(NSLocalizedString("update.checking.title"), "");
}

void UpdateWindow::showResult(const CheckResult& result, const std::string& currentVersion) {
    page_.clear();
    progress_.setRange(0, 1);
    progress_.hide();
    notes_.hide();
    openPage_.hide();
    dismiss_.setText(QString::fromStdString(NSLocalizedString("update.button.close")));
    switch (result.outcome) {
        case Outcome::upToDate:
            return show(NSLocalizedString("update.upToDate.title"),
                        localized("update.upToDate.message", currentVersion));
        case Outcome::newVersion:
            return showNewVersion(*result.item, currentVersion);
        case Outcome::noFeedAddress:
            return show(NSLocalizedString("update.package.title"), NSLocalizedString("update.package.message"));
        default:
            return show(NSLocalizedString("update.failed.title"), failureMessage(result.outcome));
    }
}

void UpdateWindow::showNewVersion(const Item& item, const std::string& currentVersion) {
    page_ = item.page;
    notes_.setPlainText(item.notes);
    notes_.setVisible(!item.notes.isEmpty());
    openPage_.setVisible(!page_.isEmpty());
    if (!page_.isEmpty()) dismiss_.setText(QString::fromStdString(NSLocalizedString("update.button.later")));
    const std::string message = page_.isEmpty() ? localized("update.newVersion.noPage", currentVersion)
                                                : localized("update.newVersion.message", currentVersion);
    show(localized("update.newVersion.title", item.versionText.toStdString()), message);
}

void UpdateWindow::show(const std::string& title, const std::string& message) {
    setText(title_, title);
    setText(message_, message);
    QPushButton& first = page_.isEmpty() ? dismiss_ : openPage_;
    first.setDefault(true);
    first.setFocus();
    fit();
}

void UpdateWindow::fit() {
    for (QWidget* const label : {&title_, &message_}) label->ensurePolished();  // the style sheet sizes their texts
    layout()->activate();
    resize(width(), layout()->totalHeightForWidth(width()));
}

void UpdateWindow::place() {
    if (program_ != nullptr && !isVisible()) program_->managedWindowWillAppear(winId());
    QDialog::show();
}

void UpdateWindow::appear() {
    setAttribute(Qt::WA_ShowWithoutActivating, true);
    place();
}

void UpdateWindow::bringForward() {
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    place();
    raise();
    if (program_ != nullptr) program_->managedWindowCameToFront(winId());
    if (WindowEffects::isInstalled()) {
        WindowEffects::shared().giveFocus(winId());
    } else {
        activateWindow();
    }
}

void UpdateWindow::hideEvent(QHideEvent* event) {
    if (program_ != nullptr) program_->managedWindowWentAway(winId());
    QDialog::hideEvent(event);
}

void UpdateWindow::openPage() {
    const std::string address = page_.toString(QUrl::FullyEncoded).toStdString();
    if (Workspace::shared().openURL(address)) return accept();
    logLine("updates: nothing opens " + address);
    setText(message_, localized("update.newVersion.pageFailed", address));
    fit();
}

}  // namespace orlamo::appcast
