#pragma once

#include "overlay/KeyRowScene.h"

#include <memory>

// Draws a key row into its overlay window through the display server: caps are sent to the
// server once and then only placed, scaled and faded there, and the frames of an animation cost
// the application no wake-up each.
class KeyRowRenderer {
public:
    virtual ~KeyRowRenderer() = default;

    // Draws the scene as of now at once (unless frames already run and the scene is not urgent:
    // it then shows with the next one), then its frames at the scene's frame rate while anything
    // in it moves. Called on the GUI thread.
    virtual void setScene(std::shared_ptr<const KeyRowScene> scene) = 0;
    // Prepares the images of sample caps, drawn at `opacity` (and `opaque` as in a scene), so
    // that the first key finds its cap's shadow, glyphs and image ready.
    virtual void warmUp(const std::vector<std::shared_ptr<const KeyView>> &views, double opacity,
                        bool opaque, double devicePixelRatio) = 0;
};
