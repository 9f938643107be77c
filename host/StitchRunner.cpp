#include "StitchRunner.h"

#include <QThread>

StitchRunner::StitchRunner(QObject* parent) : QObject(parent)
{
    m_poll.setInterval(PollMilliseconds);
    connect(&m_poll, &QTimer::timeout, this, &StitchRunner::Deliver);
    qRegisterMetaType<StitchPipeline::StepEvent>();
    qRegisterMetaType<StitchPipeline::Result>();
}

StitchRunner::~StitchRunner()
{
    Cancel();
    Wait();
}

bool StitchRunner::Start(const StitchPipeline::Options& options)
{
    if (m_pipeline)
        return false;
    m_pipeline = std::make_unique<StitchPipeline>(options);
    StitchPipeline* pipeline = m_pipeline.get();
    // The worker hands its events over under the mutex; this object's thread
    // takes them every PollMilliseconds. Nothing else crosses the threads, so
    // no Qt event is posted from the worker. The runner waits for the worker
    // before it goes.
    pipeline->setProgress([this](const StitchPipeline::StepEvent& event) {
        // The texts are copied, not shared: the worker goes on reusing its
        // own, and a count shared with Qt's library code is one that
        // ThreadSanitizer cannot follow across the threads.
        StitchPipeline::StepEvent copy = event;
        for (QString* text : { &copy.tool, &copy.name, &copy.note })
            *text = QString(text->constData(), text->size());
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_events.append(copy);
    });
    m_thread = QThread::create([this, pipeline] {
        const StitchPipeline::Result result = pipeline->run();
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_result = std::make_unique<StitchPipeline::Result>(result);
        }
    });
    m_thread->setObjectName(QStringLiteral("stitch"));
    m_thread->start();
    m_poll.start();
    return true;
}

void StitchRunner::Cancel()
{
    if (m_pipeline)
        m_pipeline->cancel();
}

void StitchRunner::Wait()
{
    if (!m_thread)
        return;
    m_thread->wait();
    delete m_thread;
    m_thread = nullptr;
}

void StitchRunner::Deliver()
{
    QVector<StitchPipeline::StepEvent> events;
    std::unique_ptr<StitchPipeline::Result> result;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        events.swap(m_events);
        result.swap(m_result);
    }
    for (const StitchPipeline::StepEvent& event : qAsConst(events))
        emit Step(event);
    if (result) {
        m_poll.stop();
        Wait();
        m_pipeline.reset();
        emit Finished(*result);
    }
}
