#include "SignalRelay.h"

#include "ReadingThread.h"

SignalRelay::SignalRelay(ReadingThread* thread)
{
    // Named connections: the generated dispatcher reads nothing of the queued
    // call but the slot's index.
    connect(thread, SIGNAL(Loaded()), this, SLOT(OnLoaded()), Qt::QueuedConnection);
    connect(thread, SIGNAL(Start()), this, SLOT(OnStart()), Qt::QueuedConnection);
    connect(thread, SIGNAL(Done()), this, SLOT(OnDone()), Qt::QueuedConnection);
}

void SignalRelay::OnLoaded()
{
    m_events << QStringLiteral("Loaded");
    emit Loaded();
}

void SignalRelay::OnStart()
{
    m_events << QStringLiteral("Start");
    emit Started();
}

void SignalRelay::OnDone()
{
    m_events << QStringLiteral("Done");
    emit Done();
}
