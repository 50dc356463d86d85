#pragma once

#include <QString>

#include <functional>
#include <memory>

class QWidget;

// Where a top-level widget shows when Qt cannot make it the window it needs (a surface on a
// layer of the compositor): the surface draws the widget's pixels and hands it the pointer and
// keys it receives. The widget stays shown but off screen while the surface lives; destroying the
// surface takes it off the screen.
class WidgetSurface {
public:
    // Makes the surface of `widget` over the display whose output is named `outputName`, or
    // nothing when the compositor offers none.
    using Factory =
        std::function<std::unique_ptr<WidgetSurface>(QWidget &widget, const QString &outputName)>;

    virtual ~WidgetSurface() = default;
};
