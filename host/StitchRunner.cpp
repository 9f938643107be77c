#include "StitchRunner.h"

#include <QPointer>
#include <QThread>

StitchRunner::StitchRunner(QObject* parent) : QObject(parent)
{
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
    // The events cross to this object's thread by queued calls; the pointer
    // guards against a runner deleted before they arrive.
    QPointer<StitchRunner> self(this);
    pipeline->setProgress([self](const StitchPipeline::StepEvent& event) {
        if (self)
            QMetaObject::invokeMethod(
                self,
                [self, event] {
                    if (self)
                        emit self->Step(event);
                },
                Qt::QueuedConnection);
    });
    m_thread = QThread::create([self, pipeline] {
        const StitchPipeline::Result result = pipeline->run();
        QMetaObject::invokeMethod(
            self,
            [self, result] {
                if (!self)
                    return;
                self->Wait();
                self->m_pipeline.reset();
                emit self->Finished(result);
            },
            Qt::QueuedConnection);
    });
    m_thread->setObjectName(QStringLiteral("stitch"));
    m_thread->start();
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
