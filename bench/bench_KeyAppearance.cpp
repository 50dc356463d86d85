// Resolves a key cap's look many times (as every repaint does) and reads and writes a list of
// saved presets; prints the time per operation.
#include "overlay/KeyAppearance.h"
#include "settings/CustomKeyStylePresetStore.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    SettingsStore settings(dir.filePath(QStringLiteral("bench.conf")));
    settings.setValue(AppSettings::keyStyle, AppSettings::KeyStyle::gaming);
    settings.setValue(AppSettings::keyTextColor, QString());
    settings.setValue(AppSettings::keyGlowEnabled, true);
    const KeyPress key = KeyPress::make(QStringLiteral("K"), 40, KeyCategory::Kind::letter);

    constexpr int resolves = 200000;
    double sink = 0.0;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < resolves; ++i)
        sink += resolveKeyAppearance(key, 2.0, settings).borderWidth;
    const double resolveNs = double(timer.nsecsElapsed()) / resolves;

    QList<CustomKeyStylePreset> presets;
    for (int i = 0; i < 50; ++i)
        presets.append({QUuid::createUuid(), QStringLiteral("Preset %1").arg(i),
                        AppearanceSettingsSnapshot::fromSettings(settings)});
    constexpr int rounds = 2000;
    qsizetype bytes = 0;
    timer.restart();
    for (int i = 0; i < rounds; ++i)
        bytes = CustomKeyStylePresetStore::encode(presets)->size();
    const double encodeUs = double(timer.nsecsElapsed()) / rounds / 1000.0;
    const QByteArray data = *CustomKeyStylePresetStore::encode(presets);
    timer.restart();
    for (int i = 0; i < rounds; ++i)
        sink += double(CustomKeyStylePresetStore::decode(data)->size());
    const double decodeUs = double(timer.nsecsElapsed()) / rounds / 1000.0;

    std::printf("resolveKeyAppearance: %.0f ns per key cap\n", resolveNs);
    std::printf("50 presets (%lld bytes of JSON): encode %.1f us, decode %.1f us\n",
                static_cast<long long>(bytes), encodeUs, decodeUs);
    return sink < 0 ? 1 : 0;
}
