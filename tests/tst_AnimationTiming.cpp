#include "overlay/AnimationTiming.h"

#include <QTest>

#include <cmath>

using KeyAnimationStyle = AppSettings::KeyAnimationStyle;

class tst_AnimationTiming final : public QObject {
    Q_OBJECT

private slots:
    void startsAtZeroAndRestsAtOne_data()
    {
        QTest::addColumn<double>("response");
        QTest::addColumn<double>("damping"); // 0: ease-in-out of `response` seconds
        QTest::newRow("ease 0.3 s") << 0.3 << 0.0;
        QTest::newRow("ease 0.2 s") << 0.2 << 0.0;
        QTest::newRow("bouncy spring") << 0.4 << 0.5;
        QTest::newRow("critically damped") << 0.4 << 1.0;
        QTest::newRow("overdamped") << 0.4 << 2.0;
    }
    void startsAtZeroAndRestsAtOne()
    {
        QFETCH(double, response);
        QFETCH(double, damping);
        const AnimationTiming timing = damping == 0.0 ? AnimationTiming::easeInOut(response)
                                                      : AnimationTiming::spring(response, damping);
        QCOMPARE(timing.value(0.0), 0.0);
        QCOMPARE(timing.value(timing.duration()), 1.0);
        QVERIFY(timing.isFinished(timing.duration()));
        QVERIFY(!timing.isFinished(timing.duration() * 0.5));
        // Just before the end it is already at rest, so the last step is invisible.
        QVERIFY(std::abs(timing.value(timing.duration() * 0.999) - 1.0) < 0.002);
        QVERIFY(timing.duration() < 2.0);
    }

    void easeInOutIsSlowAtBothEnds()
    {
        const AnimationTiming timing = AnimationTiming::easeInOut(0.3);
        QCOMPARE(timing.duration(), 0.3);
        QVERIFY(std::abs(timing.value(0.15) - 0.5) < 0.01);
        QVERIFY(timing.value(0.03) < 0.05); // a linear curve would be at 0.1
        QVERIFY(timing.value(0.27) > 0.95);
    }

    void bouncySpringOvershootsOnce()
    {
        // Damping fraction 0.5: the first peak is at π / ω_d with an overshoot of
        // exp(−πζ / √(1 − ζ²)) ≈ 16.3 %.
        const AnimationTiming spring = AnimationTiming::spring(0.4, 0.5);
        const double omegaD = 2.0 * M_PI / 0.4 * std::sqrt(0.75);
        const double peakTime = M_PI / omegaD;
        QVERIFY(std::abs(spring.value(peakTime) - 1.163) < 0.002);
        QVERIFY(spring.value(peakTime - 0.02) < spring.value(peakTime));
        QVERIFY(spring.value(peakTime + 0.02) < spring.value(peakTime));
        // Then it swings back below the target before settling.
        QVERIFY(spring.value(2.0 * peakTime) < 1.0);
    }

    void dampedSpringsNeverOvershoot_data()
    {
        QTest::addColumn<double>("damping");
        QTest::newRow("critical") << 1.0;
        QTest::newRow("over") << 3.0;
    }
    void dampedSpringsNeverOvershoot()
    {
        QFETCH(double, damping);
        const AnimationTiming spring = AnimationTiming::spring(0.4, damping);
        double previous = 0.0;
        for (double t = 0.0; t <= spring.duration(); t += 0.005) {
            const double value = spring.value(t);
            QVERIFY(value <= 1.0);
            QVERIFY(value >= previous);
            previous = value;
        }
    }

    void keyListTimingFollowsTheAnimationStyle_data()
    {
        QTest::addColumn<KeyAnimationStyle>("style");
        QTest::addColumn<bool>("spring");
        QTest::newRow("none") << KeyAnimationStyle::none << false;
        QTest::newRow("fadeIn") << KeyAnimationStyle::fadeIn << false;
        QTest::newRow("scaleIn") << KeyAnimationStyle::scaleIn << false;
        QTest::newRow("slideIn") << KeyAnimationStyle::slideIn << false;
        QTest::newRow("bounce") << KeyAnimationStyle::bounce << true;
    }
    void keyListTimingFollowsTheAnimationStyle()
    {
        QFETCH(KeyAnimationStyle, style);
        QFETCH(bool, spring);
        const AnimationTiming timing = AnimationTiming::forKeyList(style);
        QCOMPARE(timing.isSpring(), spring);
        if (!spring)
            QCOMPARE(timing.duration(), 0.3);
        QCOMPARE(AnimationTiming::forLabelChange().duration(), 0.2);
    }
};

QTEST_APPLESS_MAIN(tst_AnimationTiming)
#include "tst_AnimationTiming.moc"
