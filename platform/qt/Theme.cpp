#include "platform/qt/Theme.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QPalette>
#include <QStyleFactory>
#include <QTranslator>
#include <array>

#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/qt/QtImages.h"

namespace orlamo::qt {

namespace {

struct Tone {
    QPalette::ColorRole role;
    QRgb color;
};

// Greys of the panel, with its teal for what is selected.
constexpr std::array tones{
    Tone{QPalette::Window, 0xff1e1e20},      Tone{QPalette::WindowText, 0xfff2f2f4},
    Tone{QPalette::Base, 0xff26262a},        Tone{QPalette::AlternateBase, 0xff2c2c30},
    Tone{QPalette::Text, 0xfff2f2f4},        Tone{QPalette::PlaceholderText, 0xff8e8e93},
    Tone{QPalette::Button, 0xff36363b},      Tone{QPalette::ButtonText, 0xfff2f2f4},
    Tone{QPalette::BrightText, 0xffffffff},  Tone{QPalette::ToolTipBase, 0xff36363b},
    Tone{QPalette::ToolTipText, 0xfff2f2f4}, Tone{QPalette::Light, 0xff4a4a50},
    Tone{QPalette::Midlight, 0xff404046},    Tone{QPalette::Mid, 0xff2a2a2e},
    Tone{QPalette::Dark, 0xff161618},        Tone{QPalette::Shadow, 0xff000000},
    Tone{QPalette::Highlight, 0xff6ac4dc},   Tone{QPalette::HighlightedText, 0xff101012},
    Tone{QPalette::Link, 0xff6ac4dc},        Tone{QPalette::LinkVisited, 0xff6ac4dc},
};
constexpr QRgb disabledText = 0xff77777c;

QPalette palette() {
    QPalette palette;
    for (const Tone& tone : tones) palette.setColor(tone.role, QColor::fromRgb(tone.color));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(disabledText));
    }
    return palette;
}

void loadStyleSheet(QApplication& application) {
    const auto path = Bundle::shared().pathForResource("theme", "qss");
    if (!path) {
        logLine("theme: the bundle has no theme.qss");
        return;
    }
    QFile file(QString::fromStdString(*path));
    if (!file.open(QIODevice::ReadOnly)) {
        logLine("theme: cannot read " + *path);
        return;
    }
    QDir::setSearchPaths("image", {QFileInfo(file).absolutePath()});
    application.setStyleSheet(QString::fromUtf8(file.readAll()));
}

}  // namespace

void applyTheme(QApplication& application, const QString& language) {
    auto* const texts = new QTranslator(&application);
    // Debian splits the toolkit's translations off: without them its few own texts stay English.
    if (texts->load("qtbase_" + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(texts);
    }
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setPalette(palette());
    loadStyleSheet(application);
    QApplication::setWindowIcon(SvgImage(Bundle::shared().bundleIdentifier()).icon());
}

}  // namespace orlamo::qt
