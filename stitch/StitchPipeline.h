// StitchPipeline: stitches a project written by "panohead import" with Hugin's
// programs, up to the finished panorama: control points (by correlation at
// the recorded positions when the description uses them, else or where
// correlation leaves linked pictures without points by cpfind), the removal
// of points between stacks that no authorised link joins, cpclean,
// autooptimiser, optionally the removal of links that disagree with the
// optimised positions, pano_modify, then the render. A shoot of single
// pictures is remapped (nona, one run per picture, as many at once as there
// are cores) and blended (verdandi); stacks of exposures are remapped, each
// stack fused (enfuse) and the fused stacks blended; an HDR panorama merges
// each stack to linear floating point (nona -r hdr, hugin_hdrmerge) and
// blends the merged stacks (enblend) into OpenEXR or 32-bit float TIFF, with
// the fused panorama beside it as a JPEG preview.
// Hugin's programs do not always report a failure by their exit code, so what
// every step wrote is checked.
//
// No widgets and no event loop: run() blocks on the thread that calls it and
// reports each step through a callback on that thread; cancel() may be called
// from any thread (or a signal handler) while run() works.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <memory>

class StitchPipeline
{
public:
    /// What the render makes of stacks of exposures.
    enum class Output {
        /// HDR when the description's output mode is 3 (32-bit HDR), else fused.
        Automatic,
        /// The exposures of every stack fused into an 8-bit panorama.
        Fused,
        /// A floating-point panorama of linear light, and a fused JPEG preview.
        Hdr,
    };

    struct Options
    {
        /// The imported Hugin project.
        QString project;
        /// The JSON description; empty: the project's name with ".json"
        /// beside it, or none when there is no such file. Without a
        /// description the stacks are those the project records (its stack
        /// numbers; without one a picture is a stack of its own), every pair
        /// of stacks is linked, every pair of pictures is searched for
        /// control points (as without "Use recorded location", with links
        /// in all stack levels and control points inside stacks) and the
        /// other options are the forms' defaults with "Auto detection".
        QString description;
        /// The panorama file: .tif or .jpg; for HDR .exr or .tif (32-bit
        /// float). Empty: the project's name with ".tif", for HDR with ".exr".
        QString output;
        Output mode = Output::Automatic;
        /// Where intermediate projects, pictures and logs go; empty: the
        /// project's name with ".stitch" beside it. A stitch holds the lock
        /// file "stitch.lock" there while it runs; a second stitch in the same
        /// folder fails before its first step.
        QString workFolder;
        /// Where Hugin's programs are; empty: looked up in PATH.
        QString tools;
        /// Seconds any one program may run.
        int timeoutSeconds = 900;
        /// Control points are found by cpfind even where correlation at the
        /// recorded positions could find them ("Use recorded location" with
        /// hard links inside the stacks, or stacks of one picture).
        bool cpfind = false;
    };

    /// One step's start, progress or end, as the progress callback receives it.
    struct StepEvent
    {
        enum Phase {
            Started,
            /// Part of the step is done: done of total pictures ("Remapping"
            /// and "Remapping to linear light" count them). Comes first with
            /// done 0, then once per picture, done counting up to total.
            Progressed,
            /// Ended well; note may say what it found ("340 points"; the
            /// control points' step says when correlation found them).
            Done,
            /// Ended with an error; note holds the reason.
            Failed,
            /// Ended by cancel().
            Stopped,
        };
        Phase phase = Started;
        /// 1 to count. A shoot of single pictures without "Auto detection"
        /// has 4 steps, with it 7; stacks add fusing, "Clean wrong link" a
        /// check of the links, HDR three steps more.
        int step = 0;
        int count = 0;
        /// The program the step runs ("cpfind"), "links" for the filter or
        /// "linkcheck" for the removal of links that disagree.
        QString tool;
        /// What the step does for a person ("Finding control points"), in
        /// English; translatable in the context "StitchPipeline".
        QString name;
        QString note;
        /// Since the step started; 0 for Started.
        qint64 elapsedMilliseconds = 0;
        /// Progressed: how many of total parts of the step are done; both 0
        /// in the other phases.
        int done = 0;
        int total = 0;
    };
    using Progress = std::function<void(const StepEvent&)>;

    struct Result
    {
        enum Outcome { Succeeded, Failed, Stopped };
        Outcome outcome = Failed;
        /// Failed or Stopped: the step that failed or was running or next
        /// (1 to stepCount); 0 when the stitch failed before its first step
        /// (a file or a program is missing).
        int step = 0;
        int stepCount = 0;
        QString tool;
        QString name;
        /// Failed: why, e.g. "cpfind exit code 3: <last lines of its output>".
        QString error;
        /// Every program's command line and output; empty before the work
        /// folder exists.
        QString log;
        /// Where the panorama goes (absolute). Blending writes beside it
        /// under a temporary name and renames the new panorama into place
        /// only once checked, so after a failure or stop an older panorama
        /// is there as it was. Its size in pixels is valid on success only.
        QString panorama;
        QSize panoramaSize;
        /// HDR: the fused JPEG beside the panorama (absolute); else empty.
        QString preview;
        bool hdr = false;
        /// The last project written: on success the one the panorama is made of.
        QString stitchedProject;
        /// Absolute; empty only when the project file does not exist.
        QString workFolder;
        /// One line for the person who asked for the stitch, e.g. that the
        /// project has no description; empty when there is nothing to say.
        QString note;
        qint64 elapsedMilliseconds = 0;

        bool succeeded() const { return outcome == Succeeded; }
    };

    /// What the checks before the first step found: the inputs, resolved.
    struct Inputs
    {
        /// Absolute, like every path here.
        QString project;
        /// Empty when the project has no description.
        QString description;
        /// The project's photographs, in its order.
        QStringList photographs;
        /// The panorama is floating point (OpenEXR or float TIFF).
        bool hdr = false;
        /// Options::output, or the project's name with ".tif" (HDR ".exr").
        QString panorama;
        /// As Result::note.
        QString note;
    };

    explicit StitchPipeline(const Options& options);
    ~StitchPipeline();
    StitchPipeline(const StitchPipeline&) = delete;
    StitchPipeline& operator=(const StitchPipeline&) = delete;

    /// Reads the project (one written by "panohead import") and its
    /// description, and checks that they fit and that every photograph can
    /// be read. run() starts with these checks unless they were made; made
    /// before run(), they let a caller check its outputs against the inputs.
    /// False with one line naming the file and the reason in *error.
    bool check(QString* error);
    /// Valid once check() succeeded.
    const Inputs& inputs() const;

    /// Called on run()'s thread when a step starts, when part of it is done
    /// and when it ends. Set it before run().
    void setProgress(Progress progress);

    /// Runs every step; returns when the panorama is written, a step failed,
    /// or cancel() took effect. A cancelled pipeline stays cancelled: run()
    /// after cancel() returns Stopped without starting a step.
    Result run();

    /// Stops run() within about 0.1 s (a second more for a program that
    /// ignores SIGTERM): the running program's process group is ended, its
    /// partial output (and the panorama's) removed, and run() returns
    /// Stopped. Thread-safe and async-signal-safe; may come before run().
    void cancel();
    bool isCancelled() const;

    /// Every program a stitch may run, in order; those of the steps a stitch
    /// runs must be found.
    static QStringList programs();

private:
    struct Checked;

    Options m_options;
    Progress m_progress;
    std::atomic<bool> m_cancelled { false };
    std::unique_ptr<Checked> m_checked;
};
