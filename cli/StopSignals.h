// StopSignals: SIGINT and SIGTERM while a command runs. The handler only
// records the signal and cancels the running stitch (both lock-free atomic
// stores, safe in a signal handler); the command sees the signal when its
// work returns, removes what it has not finished and exits with 128 + the
// signal's number. While nothing of the command's is on disk yet (reading
// photographs), the handler ends the program at once instead.
//
// A self-pipe and a QSocketNotifier need an event loop, which the commands do
// not run: the stitch blocks on its tools and polls its stop flag.
#pragma once

class StitchPipeline;

class StopSignals
{
public:
    /// Catches SIGINT and SIGTERM until destroyed, then restores the
    /// previous handlers. On the main thread; objects may nest (the program
    /// catches signals from its start, a command for its run), the
    /// outermost one installing and restoring.
    StopSignals();
    ~StopSignals();
    StopSignals(const StopSignals&) = delete;
    StopSignals& operator=(const StopSignals&) = delete;

    /// The pipeline that a signal cancels (null: none).
    static void setPipeline(StitchPipeline* pipeline);
    /// True: a signal writes message (a static string: "panohead import:
    /// stopped\n") to stderr and ends the program with 128 + the signal at
    /// once. For phases that have nothing to clean up.
    static void setExitAtOnce(const char* message);
    static void clearExitAtOnce();

    /// The signal caught since construction; 0 when none.
    static int received();
    /// 128 + received().
    static int exitCode();
};
