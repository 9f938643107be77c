// StackPosition: where one camera position (a stack) points, in degrees.
#pragma once

struct StackPosition
{
    /// Grows to the right.
    double yaw = 0.0;
    /// Positive upward.
    double pitch = 0.0;
    /// Turn of the camera about its axis, clockwise positive.
    double roll = 0.0;
};
