#include "overlay/MouseButtonFillShape.h"
#include "overlay/MouseClickIndicatorView.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTest>

#include <cmath>

namespace {
QImage render(MouseClickButton button, double m, const QPointF &topLeft, QSize size = {64, 64})
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    MouseClickIndicatorView(button, Qt::black, m).paint(painter, topLeft);
    return image;
}

// Rows of `column` whose pixel is (nearly) fully inked, as [first, last] runs.
QList<QPair<int, int>> inkedRuns(const QImage &image, int column, int minimumAlpha)
{
    QList<QPair<int, int>> runs;
    int start = -1;
    for (int y = 0; y <= image.height(); ++y) {
        const bool inked = y < image.height() && qAlpha(image.pixel(column, y)) >= minimumAlpha;
        if (inked && start < 0)
            start = y;
        if (!inked && start >= 0) {
            runs.append({start, y - 1});
            start = -1;
        }
    }
    return runs;
}
} // namespace

class tst_MouseClickIndicatorView final : public QObject {
    Q_OBJECT

private slots:
    void dimensionsScaleWithTheSize_data()
    {
        QTest::addColumn<double>("m");
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<double>("lineWidth");
        QTest::newRow("2.0") << 2.0 << QSizeF(23.0, 29.0) << 2.7;
        QTest::newRow("1.0") << 1.0 << QSizeF(11.5, 14.5) << 1.35;
        QTest::newRow("0.5 keeps one point of line") << 0.5 << QSizeF(5.75, 7.25) << 1.0;
        QTest::newRow("0.7 just below the bound") << 0.7 << QSizeF(8.05, 10.15) << 1.0;
    }
    void dimensionsScaleWithTheSize()
    {
        QFETCH(double, m);
        QFETCH(QSizeF, size);
        QFETCH(double, lineWidth);
        QCOMPARE(MouseClickIndicatorView::sizeFor(m), size);
        QCOMPARE(MouseClickIndicatorView::lineWidthFor(m), lineWidth);
        QCOMPARE(MouseClickIndicatorView::buttonHeightFor(m), 6.0 * m);
    }

    void drawnGlyphHasItsSizeAndDivider()
    {
        // At 2.0 the body is 23 × 29 with 2.7-wide lines centred on its edge; the divider sits
        // 12 below the top.
        const QImage image = render(MouseClickButton::right, 2.0, QPointF(10, 10));
        QRect ink;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (qAlpha(image.pixel(x, y)) > 127)
                    ink |= QRect(x, y, 1, 1);
        QVERIFY(std::abs(ink.width() - (23 + 2.7)) <= 1.0);
        QVERIFY(std::abs(ink.height() - (29 + 2.7)) <= 1.0);
        QVERIFY(std::abs(ink.center().x() - (10 + 11.5)) <= 1.0);

        // Down a column through the (untinted) left button: the top outline, then the divider.
        const auto runs = inkedRuns(image, 10 + 5, 200);
        QVERIFY2(runs.size() >= 2, "expected the outline and the divider");
        const double dividerCentre = (runs[1].first + runs[1].second + 1) / 2.0;
        QVERIFY2(std::abs(dividerCentre - (10 + 12)) <= 0.75,
                 qPrintable(QString::number(dividerCentre)));
        // And the vertical stroke of the T runs down the middle of the buttons only.
        const auto middle = inkedRuns(image, 10 + 11, 200);
        QVERIFY(!middle.isEmpty());
        QVERIFY(middle.first().second >= 10 + 12);
    }

    void pressedButtonIsTinted_data()
    {
        QTest::addColumn<MouseClickButton>("button");
        QTest::addColumn<bool>("leftTinted");
        QTest::newRow("left") << MouseClickButton::left << true;
        QTest::newRow("right") << MouseClickButton::right << false;
    }
    void pressedButtonIsTinted()
    {
        QFETCH(MouseClickButton, button);
        QFETCH(bool, leftTinted);
        const QImage image = render(button, 4.0, QPointF(4, 4), QSize(60, 70));
        // Inside each button, clear of every line: the tint is the colour at 28 % opacity.
        const int y = 4 + 14;
        const int leftX = 4 + 12;
        const int rightX = 4 + 46 - 12;
        const int tint = qRound(0.28 * 255);
        const int leftAlpha = qAlpha(image.pixel(leftX, y));
        const int rightAlpha = qAlpha(image.pixel(rightX, y));
        QVERIFY(std::abs((leftTinted ? leftAlpha : rightAlpha) - tint) <= 2);
        QCOMPARE(leftTinted ? rightAlpha : leftAlpha, 0);
        // Below the divider nothing is tinted.
        QCOMPARE(qAlpha(image.pixel(leftX, 4 + 40)), 0);
        QCOMPARE(qAlpha(image.pixel(rightX, 4 + 40)), 0);
    }

    void fillShapeRoundsOnlyTheOuterTopCorner_data()
    {
        QTest::addColumn<MouseClickButton>("button");
        QTest::addColumn<double>("width");
        QTest::addColumn<QRectF>("bounds");
        // Narrower than twice the button height: the corner is capped at half the width.
        QTest::newRow("left, narrow") << MouseClickButton::left << 8.0 << QRectF(0, 0, 4, 6);
        QTest::newRow("right, narrow") << MouseClickButton::right << 8.0 << QRectF(4, 0, 4, 6);
        QTest::newRow("left, wide") << MouseClickButton::left << 30.0 << QRectF(0, 0, 15, 6);
        QTest::newRow("right, wide") << MouseClickButton::right << 30.0 << QRectF(15, 0, 15, 6);
    }
    void fillShapeRoundsOnlyTheOuterTopCorner()
    {
        QFETCH(MouseClickButton, button);
        QFETCH(double, width);
        QFETCH(QRectF, bounds);
        const MouseButtonFillShape shape(button, 6.0, 6.0);
        const QPainterPath path = shape.path(QRectF(0, 0, width, 20));
        QCOMPARE(path.boundingRect(), bounds);
        const bool left = button == MouseClickButton::left;
        const double outerX = left ? bounds.left() + 0.3 : bounds.right() - 0.3;
        const double innerX = left ? bounds.right() - 0.3 : bounds.left() + 0.3;
        QVERIFY(!path.contains(QPointF(outerX, 0.3))); // the rounded outer corner
        QVERIFY(path.contains(QPointF(innerX, 0.3)));  // the square corner at the centre line
        QVERIFY(path.contains(QPointF(outerX, 5.7)));  // square at the divider
    }

    void accessibleNames_data()
    {
        QTest::addColumn<MouseClickButton>("button");
        QTest::addColumn<QString>("name");
        QTest::newRow("left") << MouseClickButton::left << QStringLiteral("Left mouse click");
        QTest::newRow("right") << MouseClickButton::right << QStringLiteral("Right mouse click");
    }
    void accessibleNames()
    {
        QFETCH(MouseClickButton, button);
        QFETCH(QString, name);
        QCOMPARE(MouseClickIndicatorView::accessibleName(button), name);
        QCOMPARE(MouseClickIndicatorView(button, Qt::red, 2.0).accessibleName(), name);
    }
};

QTEST_MAIN(tst_MouseClickIndicatorView)
#include "tst_MouseClickIndicatorView.moc"
