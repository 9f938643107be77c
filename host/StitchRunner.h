// StitchRunner: runs a StitchPipeline on a thread of its own and reports its
// steps and its end as signals on the thread that owns the runner (the GUI
// thread), so a window stays responsive while Hugin's programs work.
#pragma once

#include "StitchPipeline.h"

#include <QObject>
#include <QTimer>
#include <QVector>

#include <memory>
#include <mutex>

class QThread;

class StitchRunner : public QObject
{
    Q_OBJECT

public:
    explicit StitchRunner(QObject* parent = nullptr);
    /// Cancels a running stitch and waits for its thread.
    ~StitchRunner() override;

    /// Starts the pipeline with `options` on a worker thread. False when a
    /// stitch is already running.
    bool Start(const StitchPipeline::Options& options);
    /// Asks the running stitch to stop: its programs' process groups are
    /// ended and the partial panorama removed; Finished() follows with
    /// Result::Stopped. Nothing when no stitch runs.
    void Cancel();
    bool IsRunning() const { return m_pipeline != nullptr; }
    /// Blocks until the worker thread has ended (the tests' and the
    /// destructor's way out); Finished() is still delivered by the event loop.
    void Wait();

signals:
    /// One step starts or ends (the pipeline's own event, in English).
    void Step(const StitchPipeline::StepEvent& event);
    void Finished(const StitchPipeline::Result& result);

private:
    /// How often the runner's thread looks for the worker's events.
    static constexpr int PollMilliseconds = 50;

    /// On this object's thread: emits what the worker handed over.
    void Deliver();

    std::unique_ptr<StitchPipeline> m_pipeline;
    /// What the worker hands over, guarded by m_mutex.
    std::mutex m_mutex;
    QVector<StitchPipeline::StepEvent> m_events;
    std::unique_ptr<StitchPipeline::Result> m_result;
    QTimer m_poll;
    QThread* m_thread = nullptr;
};

Q_DECLARE_METATYPE(StitchPipeline::StepEvent)
Q_DECLARE_METATYPE(StitchPipeline::Result)
