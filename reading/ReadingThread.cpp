// The reading thread's body and the GUI thread's operations on it. The queue,
// the list and the stop flag are only touched with m_mutex held; the host's
// image reading runs without it.
#include "ReadingThread.h"

#include "ZIApplication.h"

#include <QCoreApplication>
#include <QSet>

#if defined(__SANITIZE_THREAD__)
#define ZPH_TSAN 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define ZPH_TSAN 1
#endif
#endif

#ifdef ZPH_TSAN
#include <sanitizer/tsan_interface.h>
#endif

namespace {
/// Definitions per Loaded() batch: the preview is not redrawn for every image.
constexpr int kBatchSize = 10;
/// How long Clear() sleeps between two looks at the body.
constexpr unsigned long kClearPollMs = 100;

// Qt 5 locks and unlocks a QMutex, and tells that a QThread has ended, inside
// the Qt library, which is not built for ThreadSanitizer; the sanitizer would
// see neither ordering. Under it, these helpers announce both; otherwise they
// are plain QMutex calls and nothing.
void Lock(QMutex& mutex)
{
#ifdef ZPH_TSAN
    __tsan_mutex_pre_lock(&mutex, 0);
    mutex.lock();
    __tsan_mutex_post_lock(&mutex, 0, 0);
#else
    mutex.lock();
#endif
}

void Unlock(QMutex& mutex)
{
#ifdef ZPH_TSAN
    __tsan_mutex_pre_unlock(&mutex, 0);
    mutex.unlock();
    __tsan_mutex_post_unlock(&mutex, 0);
#else
    mutex.unlock();
#endif
}

/// The mutex's memory is about to go.
void ForgetMutex([[maybe_unused]] QMutex& mutex)
{
#ifdef ZPH_TSAN
    __tsan_mutex_destroy(&mutex, 0);
#endif
}

/// Holds the mutex for a scope.
class Locker
{
public:
    explicit Locker(QMutex& mutex) : m_mutex(mutex) { Lock(m_mutex); }
    ~Locker() { Unlock(m_mutex); }
    Locker(const Locker&) = delete;
    Locker& operator=(const Locker&) = delete;

private:
    QMutex& m_mutex;
};

/// The body's last act, seen by whoever then finds the thread ended.
void AnnounceBodyEnd([[maybe_unused]] QThread* thread)
{
#ifdef ZPH_TSAN
    __tsan_release(thread);
#endif
}

/// Called after isRunning() has answered false.
void SeeBodyEnd([[maybe_unused]] QThread* thread)
{
#ifdef ZPH_TSAN
    __tsan_acquire(thread);
#endif
}
} // namespace

ReadingThread::ReadingThread(QObject* parent) : QThread(parent), m_stop(true) { }

// Deliberately neither stops nor waits: a running body would go on using the
// members. Owners call Clear() before deleting a thread that may be running.
ReadingThread::~ReadingThread()
{
    ForgetMutex(m_mutex);
}

void ReadingThread::Start(const QStringList& files)
{
    Locker locker(m_mutex);
    m_imageDefs = QList<ZIImageDef*>();
    m_queue = QQueue<QString>();
    // A path given twice is read once, at its first position; the set keeps
    // large selections from costing a scan of the queue per path.
    QSet<QString> queued;
    for (const QString& path : files) {
        if (queued.contains(path))
            continue;
        queued.insert(path);
        m_queue.enqueue(path);
    }
    // Does nothing while the body runs: it goes on with the new queue.
    QThread::start();
}

QList<ZIImageDef*> ReadingThread::ZIImageDefs()
{
    Locker locker(m_mutex);
    // A copy that shares no data with the list the body appends to: the body
    // then never finds the list shared, and the caller's copy is released
    // without touching anything the body uses.
    QList<ZIImageDef*> copy = m_imageDefs;
    copy.detach();
    return copy;
}

void ReadingThread::Clear()
{
    Lock(m_mutex);
    m_imageDefs = QList<ZIImageDef*>();
    m_queue = QQueue<QString>();
    m_stop = true;
    Unlock(m_mutex);

    // The host call in progress is not interrupted; the body sees the flag
    // after it and ends.
    while (isRunning())
        QThread::msleep(kClearPollMs);
    SeeBodyEnd(this);
}

void ReadingThread::run()
{
    // A host is required: there is nobody else to read the images.
    ZIApplication* host = static_cast<ZIApplication*>(qApp->qt_metacast("ZIApplication"));

    emit Start();

    Lock(m_mutex);
    m_stop = false;
    while (!m_queue.isEmpty()) {
        const QString path = m_queue.dequeue();
        Unlock(m_mutex);

        // The host reads without the lock, so the GUI thread never waits on a file.
        ZIImageDef* imageDef = nullptr;
        try {
            imageDef = host->CreateImageDef(path);
        } catch (...) {
            // An unreadable file yields no definition; nothing crosses the thread.
            imageDef = nullptr;
        }

        Lock(m_mutex);
        if (imageDef) {
            // A definition read while Start or Clear replaced the list lands in
            // the new list: the pages read the whole list again on Loaded().
            m_imageDefs.append(imageDef);
            if (m_imageDefs.size() % kBatchSize == 0 || m_queue.isEmpty())
                emit Loaded();
        }
        if (m_stop) {
            Unlock(m_mutex);
            emit Done();
            AnnounceBodyEnd(this);
            return;
        }
    }
    Unlock(m_mutex);
    emit Done();
    AnnounceBodyEnd(this);
}
