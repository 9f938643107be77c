#include "PhotoReader.h"

#include "ImageDefinition.h"
#include "ProgressBar.h"

#include <QAtomicInt>
#include <QRunnable>
#include <QThread>
#include <QThreadPool>

#include <vector>

QVector<QSharedPointer<ImageDefinition>> PhotoReader::read(
    const QStringList& paths, Console& console)
{
    std::vector<ImageDefinition*> results(size_t(paths.size()), nullptr);
    QAtomicInt done(0);
    QThreadPool pool;
    pool.setMaxThreadCount(qMax(1, QThread::idealThreadCount()));
    for (int i = 0; i < paths.size(); ++i) {
        // Each task writes only its own slot; the pool's wait orders the writes
        // before the reads below.
        ImageDefinition** slot = &results[size_t(i)];
        const QString path = paths[i];
        pool.start(QRunnable::create([slot, path, &done] {
            *slot = ImageDefinition::Read(path, ImageDefinition::WithThumbnail);
            done.fetchAndAddOrdered(1);
        }));
    }
    ProgressBar bar(console, QStringLiteral("Reading photographs"), paths.size());
    while (!pool.waitForDone(50))
        bar.update(done.loadAcquire());
    bar.finish(done.loadAcquire());

    QVector<QSharedPointer<ImageDefinition>> definitions;
    definitions.reserve(paths.size());
    for (ImageDefinition* d : results)
        definitions.append(QSharedPointer<ImageDefinition>(d));
    return definitions;
}
