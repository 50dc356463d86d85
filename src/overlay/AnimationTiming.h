#pragma once

#include "settings/AppSettings.h"

// The progress curve of one animation: maps seconds since its start to progress, 0 at the start
// and 1 at rest. An ease-in-out curve ends after its duration; a spring (a damped harmonic
// oscillator released from 0 towards 1) may overshoot 1 and ends once it has come to rest.
class AnimationTiming final {
public:
    static AnimationTiming easeInOut(double duration);
    // `response`: the period of the undamped oscillation in seconds; `dampingFraction`: the
    // damping ratio (below 1 it overshoots, 1 is critically damped).
    static AnimationTiming spring(double response, double dampingFraction);
    // How keys come, go and move in the row for an animation style.
    static AnimationTiming forKeyList(AppSettings::KeyAnimationStyle style);
    // How a cap changes when its label changes.
    static AnimationTiming forLabelChange();

    double value(double elapsed) const;
    bool isFinished(double elapsed) const { return elapsed >= m_duration; }
    // Seconds until the curve is at rest (for a spring: within 0.1 % of its target for good).
    double duration() const { return m_duration; }
    bool isSpring() const { return m_kind == Kind::spring; }

private:
    enum class Kind { easeInOut, spring };
    AnimationTiming(Kind kind, double duration, double response, double damping);
    double springValue(double t) const;

    Kind m_kind;
    double m_duration;
    double m_response;
    double m_damping;
};
