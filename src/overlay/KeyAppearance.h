#pragma once

#include "capture/KeyPress.h"
#include "overlay/KeyAppearanceSnapshot.h"

class SettingsStore;

// Resolves how one key cap looks now: the key's label and the drawing parameters from the
// appearance settings, falling back to the chosen built-in style's colours and border width.
// Cheap enough to call on every repaint; nothing is cached, so a changed setting shows at once.
//
// Quirks kept on purpose: a stored border width of exactly 0 means "the style's width" (only a
// style whose own width is 0 draws no border); empty colour text means "the style's colour";
// shadow radius and glow values are 0 while their effect is off; the shadow offset is always 2.
KeyAppearanceSnapshot resolveKeyAppearance(const KeyPress &keyPress, double keySize,
                                           const SettingsStore &settings);
