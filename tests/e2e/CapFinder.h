#pragma once

#include <QImage>
#include <QList>
#include <QRect>

// Finding key caps in screenshots of the whole program.
namespace CapFinder {

inline bool differs(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b)) > 60;
}

// The caps visible in `area`: bounding boxes of the column runs that differ from the desktop.
inline QList<QRect> findCaps(const QImage &screen, const QRect &area, QRgb background)
{
    QList<QRect> caps;
    if (!screen.rect().contains(area))
        return caps; // no screen read (the test has failed already), or the wrong one
    int runStart = -1, top = 0, bottom = 0;
    for (int x = area.left(); x <= area.right() + 1; ++x) {
        int columnTop = -1, columnBottom = -1;
        if (x <= area.right()) {
            for (int y = area.top(); y <= area.bottom(); ++y) {
                if (differs(screen.pixel(x, y), background)) {
                    if (columnTop < 0)
                        columnTop = y;
                    columnBottom = y;
                }
            }
        }
        if (columnTop >= 0) {
            if (runStart < 0) {
                runStart = x;
                top = columnTop;
                bottom = columnBottom;
            }
            top = qMin(top, columnTop);
            bottom = qMax(bottom, columnBottom);
        } else if (runStart >= 0) {
            caps.append(QRect(QPoint(runStart, top), QPoint(x - 1, bottom)));
            runStart = -1;
        }
    }
    return caps;
}

} // namespace CapFinder
