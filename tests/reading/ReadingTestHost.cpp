#include "ReadingTestHost.h"

#include <QThread>

#include <atomic>
#include <chrono>
#include <random>
#include <stdexcept>
#include <thread>

ReadingTestHost::ReadingTestHost(int& argc, char** argv) : QApplication(argc, argv) { }

ReadingTestHost::~ReadingTestHost()
{
    for (ZIImageDef* def : m_made)
        delete def;
}

ZIImageDef* ReadingTestHost::CreateImageDef(const QString& path)
{
    bool faults = false;
    {
        std::lock_guard<std::mutex> lock(m_lock);
        m_calls.append(path);
        m_callThreads.append(QThread::currentThread());
        faults = m_faults;
    }

    if (faults) {
        // One engine per reading thread, seeded by the thread's rank: repeatable
        // from run to run, different from thread to thread.
        static std::atomic<unsigned> threadRank { 0 };
        thread_local std::mt19937 engine(12345u + threadRank++);
        std::uniform_int_distribution<int> sleepMs(0, 3);
        std::this_thread::sleep_for(std::chrono::milliseconds(sleepMs(engine)));
        const int dice = std::uniform_int_distribution<int>(0, 9)(engine);
        if (dice == 0)
            throw std::runtime_error("unreadable image");
        if (dice == 1)
            return nullptr;
    }

    if (path.contains(QLatin1String("block"))) {
        std::unique_lock<std::mutex> gate(m_gateLock);
        ++m_arrived;
        m_gateChanged.notify_all();
        m_gateChanged.wait(gate, [this] { return m_opened > 0; });
        --m_opened;
    }
    if (path.contains(QLatin1String("null")))
        return nullptr;
    if (path.contains(QLatin1String("throwint")))
        throw 42;
    if (path.contains(QLatin1String("throw")))
        throw std::runtime_error("unreadable image");

    auto* def = new TestImageDef(35.0f, 0, 0, 0.0f, path);
    std::lock_guard<std::mutex> lock(m_lock);
    m_made.insert(def);
    return def;
}

void ReadingTestHost::ResetCalls()
{
    std::lock_guard<std::mutex> lock(m_lock);
    m_calls.clear();
    m_callThreads.clear();
}

QStringList ReadingTestHost::Calls() const
{
    std::lock_guard<std::mutex> lock(m_lock);
    return m_calls;
}

QList<QThread*> ReadingTestHost::CallThreads() const
{
    std::lock_guard<std::mutex> lock(m_lock);
    return m_callThreads;
}

bool ReadingTestHost::Made(ZIImageDef* def) const
{
    std::lock_guard<std::mutex> lock(m_lock);
    return m_made.count(def) == 1;
}

void ReadingTestHost::SetFaults(bool on)
{
    std::lock_guard<std::mutex> lock(m_lock);
    m_faults = on;
}

void ReadingTestHost::WaitUntilBlocked()
{
    std::unique_lock<std::mutex> gate(m_gateLock);
    m_gateChanged.wait(gate, [this] { return m_arrived > 0; });
    --m_arrived;
}

void ReadingTestHost::OpenGate()
{
    std::lock_guard<std::mutex> gate(m_gateLock);
    ++m_opened;
    m_gateChanged.notify_all();
}
