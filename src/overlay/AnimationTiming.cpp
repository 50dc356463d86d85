#include "overlay/AnimationTiming.h"

#include <QEasingCurve>
#include <QPointF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {
// Progress below which a spring counts as at rest.
constexpr double restThreshold = 0.001;

const QEasingCurve &easeInOutCurve()
{
    // The common ease-in-out cubic Bézier (0.42, 0) (0.58, 1).
    static const QEasingCurve curve = [] {
        QEasingCurve c(QEasingCurve::BezierSpline);
        c.addCubicBezierSegment(QPointF(0.42, 0.0), QPointF(0.58, 1.0), QPointF(1.0, 1.0));
        return c;
    }();
    return curve;
}
} // namespace

AnimationTiming::AnimationTiming(Kind kind, double duration, double response, double damping)
    : m_kind(kind), m_duration(duration), m_response(response), m_damping(damping)
{}

AnimationTiming AnimationTiming::easeInOut(double duration)
{
    return AnimationTiming(Kind::easeInOut, std::max(0.0, duration), 0.0, 0.0);
}

AnimationTiming AnimationTiming::spring(double response, double dampingFraction)
{
    const double response_ = std::max(response, 1e-3);
    const double zeta = std::max(dampingFraction, 1e-3);
    const double omega = 2.0 * std::numbers::pi / response_;
    // The envelope of the deviation decays as exp(-zeta·omega·t) (for zeta < 1; slower
    // rates apply above); a bound of the amplitude factor keeps the estimate safe.
    double rate = zeta * omega;
    double amplitude = 1.0;
    if (zeta < 1.0)
        amplitude = 1.0 + zeta / std::sqrt(1.0 - zeta * zeta);
    else if (zeta > 1.0)
        rate = omega * (zeta - std::sqrt(zeta * zeta - 1.0));
    else
        amplitude = 2.0;
    double duration = std::log(amplitude / restThreshold) / rate;
    if (zeta == 1.0)
        duration *= 1.5; // (1 + ωt) grows while the exponential decays
    return AnimationTiming(Kind::spring, duration, response_, zeta);
}

AnimationTiming AnimationTiming::forKeyList(AppSettings::KeyAnimationStyle style)
{
    if (style == AppSettings::KeyAnimationStyle::bounce)
        return spring(0.4, 0.5);
    return easeInOut(0.3);
}

AnimationTiming AnimationTiming::forLabelChange()
{
    return easeInOut(0.2);
}

double AnimationTiming::value(double elapsed) const
{
    if (elapsed <= 0.0)
        return 0.0;
    if (elapsed >= m_duration)
        return 1.0;
    if (m_kind == Kind::easeInOut)
        return easeInOutCurve().valueForProgress(elapsed / m_duration);
    return springValue(elapsed);
}

double AnimationTiming::springValue(double t) const
{
    // x'' + 2ζω x' + ω² x = ω² with x(0) = 0, x'(0) = 0.
    const double omega = 2.0 * std::numbers::pi / m_response;
    const double zeta = m_damping;
    if (zeta < 1.0) {
        const double omegaD = omega * std::sqrt(1.0 - zeta * zeta);
        const double decay = std::exp(-zeta * omega * t);
        return 1.0 - decay * (std::cos(omegaD * t) + zeta * omega / omegaD * std::sin(omegaD * t));
    }
    if (zeta == 1.0)
        return 1.0 - std::exp(-omega * t) * (1.0 + omega * t);
    const double root = std::sqrt(zeta * zeta - 1.0);
    const double r1 = -omega * (zeta - root);
    const double r2 = -omega * (zeta + root);
    return 1.0 - (r2 * std::exp(r1 * t) - r1 * std::exp(r2 * t)) / (r2 - r1);
}
