#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

// The symbols drawn for Vantrel (data/symbols/<name>.svg, built into the program), named like
// "gear", "hand.draw" or "keyboard.fill". They are monochrome: drawn black on transparent and
// tinted with the colour they are asked for, so they follow light and dark palettes.
class Symbols final {
public:
    Symbols() = delete;

    static bool exists(const QString &name);
    // The symbol in `color` at `size` (device-independent pixels) for a screen of the given
    // device pixel ratio; a null pixmap when there is no such symbol.
    static QPixmap pixmap(const QString &name, QSize size, const QColor &color,
                          qreal devicePixelRatio = 1.0);
    // An icon that draws the symbol in `color` at whatever size it is asked for; a null icon when
    // there is no such symbol.
    static QIcon icon(const QString &name, const QColor &color);
    // The same in the application palette's text colour (for buttons, tabs and menus).
    static QIcon icon(const QString &name);
    // The symbol as it is, black on transparent, for "mask" icons that a desktop recolours.
    static QIcon maskIcon(const QString &name);
    // Vantrel's own icon in colour (window icons, the About tab), sharp at any size.
    static QIcon applicationIcon();
};
