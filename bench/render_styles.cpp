// Renders a sample row (⌘, K, F5 and a left click) in each built-in style to PNG files:
//   render_styles <output directory>
// writes style-<name>.png over a checkered grey background, so transparency shows.

#include "capture/KeyPress.h"
#include "overlay/KeyDisplayView.h"
#include "settings/AppSettings.h"
#include "settings/KeyStylePreset.h"
#include "settings/SettingsStore.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextStream>

namespace {
void applyStyle(SettingsStore &store, AppSettings::KeyStyle style)
{
    const KeyStylePreset p = AppSettings::getStylePreset(style);
    store.setValue(AppSettings::keyStyle, style);
    store.setValue(AppSettings::keySize, p.keySize);
    store.setValue(AppSettings::keySpacing, p.keySpacing);
    store.setValue(AppSettings::keyOpacity, p.keyOpacity);
    store.setValue(AppSettings::keyFont, p.fontName);
    store.setValue(AppSettings::keyBackgroundColor, p.backgroundColor);
    store.setValue(AppSettings::keyTextColor, p.textColor);
    store.setValue(AppSettings::keyBorderColor, p.borderColor);
    store.setValue(AppSettings::keyBorderWidth, p.borderWidth);
    store.setValue(AppSettings::keyCornerRadius, p.cornerRadius);
    store.setValue(AppSettings::keyShadowEnabled, p.shadowEnabled);
    store.setValue(AppSettings::keyShadowRadius, p.shadowRadius);
    store.setValue(AppSettings::keyShadowColor, p.shadowColor);
    store.setValue(AppSettings::keyGlowEnabled, p.glowEnabled);
    store.setValue(AppSettings::keyGlowColor, p.glowColor);
    store.setValue(AppSettings::keyGlowRadius, p.glowRadius);
    // Still pictures: the keys appear at once.
    store.setValue(AppSettings::keyAnimationStyle, AppSettings::KeyAnimationStyle::none);
}

void paintCheckerboard(QImage &image)
{
    QPainter painter(&image);
    constexpr int cell = 12;
    for (int y = 0; y < image.height(); y += cell)
        for (int x = 0; x < image.width(); x += cell)
            painter.fillRect(x, y, cell, cell,
                             ((x + y) / cell) % 2 ? QColor(128, 128, 128) : QColor(150, 150, 150));
}
} // namespace

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    const QString outputDir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(".");
    QDir().mkpath(outputDir);
    QTextStream out(stdout);

    for (const AppSettings::KeyStyle style : AppSettings::allCases<AppSettings::KeyStyle>()) {
        QTemporaryDir dir;
        SettingsStore store(dir.filePath(QStringLiteral("settings.conf")));
        applyStyle(store, style);

        KeyDisplayView view(store);
        view.setSize(QSize(640, 200));
        DisplayConfiguration configuration;
        configuration.position = AppSettings::KeyPosition::custom;
        configuration.customOffsetX = 0.5;
        configuration.customOffsetY = 0.5;
        view.setConfiguration(configuration);
        QList<KeyPress> keys;
        keys.append(KeyPress::make(QStringLiteral("⌘"), KeyPress::modifierSymbolCode,
                                   KeyCategory::Kind::modifier));
        keys.append(KeyPress::make(QStringLiteral("K"), 40, KeyCategory::Kind::letter));
        keys.append(KeyPress::make(QStringLiteral("F5"), 96, KeyCategory::Kind::function));
        keys.append(KeyPress::make(QStringLiteral("Left click"), KeyPress::leftClickCode,
                                   KeyCategory::mouse(MouseClickButton::left)));
        view.setKeys(keys);

        const QRect area = view.contentRegion().boundingRect().adjusted(-16, -16, 16, 16);
        QImage image(area.size(), QImage::Format_ARGB32_Premultiplied);
        paintCheckerboard(image);
        {
            QPainter painter(&image);
            painter.translate(-area.topLeft());
            view.paint(painter);
        }
        const QString path = QDir(outputDir).filePath(
            QStringLiteral("style-%1.png").arg(AppSettings::rawValue(style)));
        if (!image.save(path)) {
            out << "could not write " << path << Qt::endl;
            return 1;
        }
        out << "wrote " << path << Qt::endl;
    }
    return 0;
}
