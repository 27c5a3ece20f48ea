#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>
#include <functional>

namespace orlamo::qt {

/// Whether the user has asked the desktop for light windows and panels, as the settings portal tells it. A desktop that
/// says nothing has not; the portal is not started for this.
class ColorScheme : public QObject {
    Q_OBJECT

public:
    /// `changed` runs when the answer is another one.
    ColorScheme(QDBusConnection bus, std::function<void()> changed);

    bool isLight() const { return isLight_; }

private slots:
    void handleSetting(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void setScheme(const QVariant& value);

    std::function<void()> changed_;
    bool isLight_ = false;
};

}  // namespace orlamo::qt
