#pragma once

class TaskState;

/// The next step of a run, in a task whose steps come, go and move meanwhile.
class RunCursor
{
public:
    /// The identifier of the next step, 0 behind the last.
    int step() const { return m_step; }
    /// Where it stands, counted from 0; the number of steps behind the last.
    int row() const { return m_row; }

    void moveToStart(const TaskState &state);
    /// Moves behind the next step.
    void moveOn(const TaskState &state);

    /// Stays with the next step as the task becomes another. While that step is gone the one that
    /// took its place is next.
    void follow(const TaskState &before, const TaskState &after);

private:
    void moveTo(const TaskState &state, int row);

    int m_step = 0;
    int m_row = 0;
    int m_meant = 0; ///< the step to run next, which may be gone and come back
};
