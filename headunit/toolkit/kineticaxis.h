// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace headunit {

/// One axis of a scroll that follows a finger, runs on after it and comes to rest softly. Counted in pixels and in
/// ticks of a timer; knows neither clock nor widget.
class KineticAxis {
public:
    /// Where the content may rest: 0 to \a max.
    void setMax(double max);

    /// A finger took hold of the content, which stands at \a position.
    void grab(double position);
    /// The finger is \a distance pixels from where it took hold; positive distances show what lies before.
    void drag(double distance);
    /// The finger let go: the content runs on as fast as it was moved during the last ticks.
    void release();

    /// One tick of the timer, while the finger holds the content and afterwards.
    void tick();
    /// Ends all motion, inside the limits.
    void stop();

    bool moving() const { return m_moving; }
    /// The content's position, 0 to max, ...
    double position() const;
    /// ... and how far it is drawn beyond that: negative before the beginning, positive after the end.
    double overshoot() const { return m_position - position(); }

private:
    double m_max = 0;
    double m_position = 0;
    double m_grabbed = 0;     // position when the finger took hold
    double m_lastTicked = 0;  // position at the last tick
    double m_velocity = 0;    // pixels per tick
    bool m_held = false;
    bool m_moving = false;
};

}  // namespace headunit
