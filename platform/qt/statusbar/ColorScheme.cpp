#include "platform/qt/statusbar/ColorScheme.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace orlamo::qt {

namespace {

constexpr auto portal = "org.freedesktop.portal.Desktop";
constexpr auto portalPath = "/org/freedesktop/portal/desktop";
constexpr auto settings = "org.freedesktop.portal.Settings";
constexpr auto appearance = "org.freedesktop.appearance";
constexpr auto colorScheme = "color-scheme";
constexpr uint lightScheme = 2;

}  // namespace

ColorScheme::ColorScheme(QDBusConnection bus, std::function<void()> changed) : changed_(std::move(changed)) {
    if (!bus.isConnected()) return;
    bus.connect(portal, portalPath, settings, "SettingChanged", {appearance, colorScheme}, QString(), this,
                SLOT(handleSetting(QString, QString, QDBusVariant)));
    auto question = QDBusMessage::createMethodCall(portal, portalPath, settings, "Read");
    question.setAutoStartService(false);
    question.setArguments({appearance, colorScheme});
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        if (!reply.isError()) setScheme(reply.value().variant());
    });
}

void ColorScheme::handleSetting(const QString&, const QString&, const QDBusVariant& value) {
    setScheme(value.variant());
}

void ColorScheme::setScheme(const QVariant& value) {
    // The older question wraps its answer twice.
    const QVariant plain = value.canConvert<QDBusVariant>() ? qvariant_cast<QDBusVariant>(value).variant() : value;
    const bool isLight = plain.toUInt() == lightScheme;
    if (isLight == isLight_) return;
    isLight_ = isLight;
    changed_();
}

}  // namespace orlamo::qt
