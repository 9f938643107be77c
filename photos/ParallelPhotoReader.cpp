#include "ParallelPhotoReader.h"

#include <QThread>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

// Plain standard threads rather than QThreadPool: their start, their end and
// the waiting between are visible to ThreadSanitizer, which sees through
// neither Qt's own mutexes nor its pool's queue.
QVector<QSharedPointer<ImageDefinition>> ParallelPhotoReader::read(
    const QStringList& paths, const Progress& progress, QStringList* reasons)
{
    const int total = paths.size();
    std::vector<ImageDefinition*> results(size_t(total), nullptr);
    std::vector<ImageDefinition::ReadFailure> failures(
        size_t(total), ImageDefinition::ReadFailure::None);
    std::atomic<int> next { 0 };
    std::atomic<int> done { 0 };
    std::mutex mutex;
    std::condition_variable finished;

    // Each worker takes the next path until none is left and writes only
    // that path's slots; joining the workers orders the writes before the
    // reads below.
    auto work = [&] {
        for (int i = next.fetch_add(1); i < total; i = next.fetch_add(1)) {
            results[size_t(i)] = ImageDefinition::Read(
                paths[i], ImageDefinition::WithThumbnail, &failures[size_t(i)]);
            if (done.fetch_add(1) + 1 == total) {
                const std::lock_guard<std::mutex> lock(mutex);
                finished.notify_all();
            }
        }
    };
    const int threads = qMin(qMax(1, QThread::idealThreadCount()), total);
    std::vector<std::thread> workers;
    workers.reserve(size_t(threads));
    for (int t = 0; t < threads; ++t)
        workers.emplace_back(work);
    {
        std::unique_lock<std::mutex> lock(mutex);
        while (!finished.wait_for(
            lock, std::chrono::milliseconds(50), [&] { return done.load() == total; })) {
            if (progress) {
                lock.unlock();
                progress(done.load(), total);
                lock.lock();
            }
        }
    }
    for (std::thread& worker : workers)
        worker.join();
    if (progress)
        progress(done.load(), total);

    QVector<QSharedPointer<ImageDefinition>> definitions;
    definitions.reserve(total);
    for (ImageDefinition* d : results)
        definitions.append(QSharedPointer<ImageDefinition>(d));
    if (reasons) {
        reasons->clear();
        reasons->reserve(total);
        for (ImageDefinition::ReadFailure failure : failures)
            reasons->append(ImageDefinition::FailureText(failure));
    }
    return definitions;
}
