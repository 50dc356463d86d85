#include "overlay/KeyAppearance.h"

#include "overlay/Color.h"
#include "settings/AppSettings.h"
#include "settings/KeyStylePreset.h"
#include "settings/SettingsStore.h"

namespace {

// The stored colour text, or the style's own when the stored text has no characters at all.
QColor colorOrStyleFallback(const QString &stored, const QString &styleColor)
{
    return Color::fromRGBAString(stored.isEmpty() ? styleColor : stored).toQColor();
}

} // namespace

KeyAppearanceSnapshot resolveKeyAppearance(const KeyPress &keyPress, double keySize,
                                           const SettingsStore &settings)
{
    const KeyStylePreset style = AppSettings::getStylePreset(settings.value(AppSettings::keyStyle));

    KeyAppearanceSnapshot s;
    const double storedBorderWidth = settings.value(AppSettings::keyBorderWidth);
    s.borderWidth = storedBorderWidth != 0.0 ? storedBorderWidth : style.borderWidth;
    s.glowColor = colorOrStyleFallback(settings.value(AppSettings::keyGlowColor), style.glowColor);
    s.text = keyPress.keyName;
    s.fontName = settings.value(AppSettings::keyFont);
    s.sizeMultiplier = keySize;
    s.textColor = colorOrStyleFallback(settings.value(AppSettings::keyTextColor), style.textColor);
    s.backgroundColor = colorOrStyleFallback(settings.value(AppSettings::keyBackgroundColor),
                                             style.backgroundColor);
    s.borderColor =
        colorOrStyleFallback(settings.value(AppSettings::keyBorderColor), style.borderColor);
    s.cornerRadius = settings.value(AppSettings::keyCornerRadius);
    s.shadowEnabled = settings.value(AppSettings::keyShadowEnabled);
    s.shadowColor =
        colorOrStyleFallback(settings.value(AppSettings::keyShadowColor), style.shadowColor);
    s.shadowRadius = s.shadowEnabled ? settings.value(AppSettings::keyShadowRadius) : 0.0;
    s.shadowYOffset = 2.0;
    s.glowEnabled = settings.value(AppSettings::keyGlowEnabled);
    s.glowRadius = s.glowEnabled ? settings.value(AppSettings::keyGlowRadius) : 0.0;
    s.glowLineWidth = s.glowEnabled ? 2.0 : 0.0;
    s.glowOpacity = s.glowEnabled ? 0.6 : 0.0;
    return s;
}
