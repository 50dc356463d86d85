// Paints a full row of 20 key caps with shadow and glow at size 3.0 into a 1920×1080 image and
// prints the time per frame and per cap, and how many bytes the effect cache holds.
// Target: at most 2 ms per frame.

#include "capture/KeyPress.h"
#include "overlay/KeyDisplayView.h"
#include "overlay/KeyEffectCache.h"
#include "settings/AppSettings.h"
#include "settings/KeyStylePreset.h"
#include "settings/SettingsStore.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextStream>

int main(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    QTextStream out(stdout);

    QTemporaryDir dir;
    SettingsStore store(dir.filePath(QStringLiteral("settings.conf")));
    // The gaming look: border, shadow and glow, all blurred.
    const KeyStylePreset style = AppSettings::getStylePreset(AppSettings::KeyStyle::gaming);
    store.setValue(AppSettings::keyStyle, AppSettings::KeyStyle::gaming);
    store.setValue(AppSettings::keyFont, style.fontName);
    store.setValue(AppSettings::keyBackgroundColor, style.backgroundColor);
    store.setValue(AppSettings::keyTextColor, style.textColor);
    store.setValue(AppSettings::keyBorderColor, style.borderColor);
    store.setValue(AppSettings::keyBorderWidth, style.borderWidth);
    store.setValue(AppSettings::keyCornerRadius, style.cornerRadius);
    store.setValue(AppSettings::keyShadowEnabled, true);
    store.setValue(AppSettings::keyShadowRadius, style.shadowRadius);
    store.setValue(AppSettings::keyShadowColor, style.shadowColor);
    store.setValue(AppSettings::keyGlowEnabled, true);
    store.setValue(AppSettings::keyGlowColor, style.glowColor);
    store.setValue(AppSettings::keyGlowRadius, style.glowRadius);
    store.setValue(AppSettings::keySize, 3.0);
    store.setValue(AppSettings::keySpacing, 0.0); // 20 caps of 96 fill the 1920 width
    store.setValue(AppSettings::keyAnimationStyle, AppSettings::KeyAnimationStyle::none);
    store.setValue(AppSettings::keyOpacity, 1.0);

    constexpr int capCount = 20;
    KeyDisplayView view(store);
    view.setSize(QSize(1920, 1080));
    QList<KeyPress> keys;
    for (int i = 0; i < capCount; ++i)
        keys.append(KeyPress::make(QString(QChar(u'A' + i)), i, KeyCategory::Kind::letter));
    view.setKeys(keys);

    QImage image(1920, 1080, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QRect rowArea = view.contentRegion().boundingRect();

    auto frame = [&] {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(rowArea, Qt::transparent);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
        painter.setClipRect(rowArea);
        view.paint(painter);
    };

    QElapsedTimer timer;
    timer.start();
    frame(); // renders the blurred effects into the cache
    const double firstFrameMs = static_cast<double>(timer.nsecsElapsed()) / 1e6;

    constexpr int frames = 300;
    timer.restart();
    for (int i = 0; i < frames; ++i)
        frame();
    const double perFrameMs = static_cast<double>(timer.nsecsElapsed()) / 1e6 / frames;

    out << "caps per frame:          " << capCount << '\n';
    out << "row area:                " << rowArea.width() << " x " << rowArea.height() << '\n';
    out << "first frame (cold cache): " << firstFrameMs << " ms\n";
    out << "time per frame:          " << perFrameMs << " ms (target <= 2 ms)\n";
    out << "time per cap:            " << perFrameMs * 1000.0 / capCount << " us\n";
    out << "effect cache:            " << KeyEffectCache::shared().count() << " images, "
        << KeyEffectCache::shared().bytes() << " bytes (budget "
        << KeyEffectCache::shared().byteBudget() << ")\n";
    return 0;
}
